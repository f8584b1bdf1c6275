"""Basque morphological analysis: every reading of a word, analysed and
checked paragraphs, CG3 and Multext renderings, word-form generation.

    >>> import tarvola
    >>> engine = tarvola.Engine()            # the bundled Basque data
    >>> engine.analyze("etxean")
    [Reading(lemma='etxe', tags='IZE ARR ...', network='eumorfo'), ...]

Text is ``str`` in and out; ``bytes`` are taken as code page 1252 (the
library's own character set). A character that code page cannot hold is
kept as it is: the word holding it is simply unknown, as with the
command-line tool.

Threads: the library work runs without the GIL. One ``Engine`` serves one
call at a time (calls from several threads wait for each other); copies
made with ``engine.copy()`` share the loaded tables and run side by side,
so give each thread of a pool its own copy. A ``Table`` and the
``Reading`` objects may be shared freely.
"""
from __future__ import annotations

import dataclasses
import os
from typing import Iterable, Iterator, List, Optional, Sequence, Tuple, Union

from ._tarvola import Reading, Table, _Engine

__all__ = ["Engine", "Table", "Reading", "Sentence", "Token", "Verdict", "DictionaryEntry",
           "CATEGORIES"]

Text = Union[str, bytes]
PathLike = Union[str, "os.PathLike[str]"]

#: Categories a personal-dictionary word may have.
CATEGORIES = ("<ARR>", "<IZO>", "<ADI>", "<PIB>", "<LIB>", "<IZB>")

_PACKAGED_CONFIG = os.path.join(os.path.dirname(os.path.abspath(__file__)), "data", "tarvola.conf")


@dataclasses.dataclass(frozen=True)
class Token:
    """A token of an analysed sentence: its form, whether a blank follows
    it, whether it was written capitalised, and its readings."""
    form: str
    space_after: bool
    capitalised: bool
    readings: List[Reading]


@dataclasses.dataclass(frozen=True)
class Sentence:
    """A sentence: the paragraph it is in (counted from 1 over the text),
    its number in the paragraph (from 1), its text and its tokens."""
    paragraph: int
    number: int
    text: str
    tokens: List[Token]


@dataclasses.dataclass(frozen=True)
class Verdict:
    """The checker's verdict on one token.

    ``kind`` is ``"ok"`` (a standard reading exists), ``"nonstandard"``
    (only non-standard readings: see ``better`` and ``usual``), ``"rare"``
    (every reading is rare) or ``"unknown"`` (see ``suggestions``;
    ``begins_word`` tells that standard words begin with the token).
    """
    paragraph: int
    sentence: int
    index: int
    form: str
    space_after: bool
    kind: str
    better: Tuple[str, ...] = ()
    usual: Tuple[str, ...] = ()
    suggestions: Tuple[str, ...] = ()
    begins_word: bool = False

    @property
    def replacements(self) -> Tuple[str, ...]:
        """The better forms, then the usual ones."""
        return self.better + self.usual


@dataclasses.dataclass(frozen=True)
class DictionaryEntry:
    """A word of the personal dictionary file."""
    lemma: str
    category: str
    extra1: str = ""
    extra2: str = ""


def _default_config() -> Optional[str]:
    # As the tool looks: TARVOLA_CONFIG first; then the data set installed
    # with the package; then (in the compiled core) beside the installed
    # tool, the build tree's data set, the demo set.
    if os.environ.get("TARVOLA_CONFIG"):
        return None
    return _PACKAGED_CONFIG if os.path.isfile(_PACKAGED_CONFIG) else None


_PROP = {"<prop k=\"ok\"/>": "ok", "<prop k=\"ezz\"/>": "unknown"}


def _inner(line: str, tag: str) -> Optional[str]:
    start, end = "<%s>" % tag, "</%s>" % tag
    if line.startswith(start) and line.endswith(end):
        return line[len(start):-len(end)]
    return None


def _parse_check(document: str, paragraph: int) -> Iterator[Verdict]:
    # The document is line-shaped (one element a line); forms are written
    # as they are, unescaped, so lines are read rather than XML parsed.
    sentence, current = 0, None
    for raw in document.split("\n"):
        line = raw.strip("\t")
        if line.startswith("<es "):
            sentence += 1
        elif line.startswith("<tok "):
            current = {"index": int(line.split('h="')[1].split('"')[0]),
                       "space_after": ' z="32"' in line, "kind": None,
                       "better": [], "usual": [], "suggestions": [], "begins_word": False}
        elif current is None:
            continue
        elif line == "</tok>":
            kind = current.pop("kind") or "rare"
            if kind == "nonstandard" and not (current["better"] or current["usual"]):
                kind = "rare"
            yield Verdict(paragraph=paragraph, sentence=sentence, index=current["index"],
                          form=current["form"], space_after=current["space_after"], kind=kind,
                          better=tuple(current["better"]), usual=tuple(current["usual"]),
                          suggestions=tuple(current["suggestions"]),
                          begins_word=current["begins_word"])
            current = None
        elif _inner(line, "frm") is not None and "form" not in current:
            current["form"] = _inner(line, "frm")
        elif line in _PROP:
            current["kind"] = _PROP[line]
        elif line.startswith("<prop k=\"ezz\""):
            current["kind"] = "unknown"
            current["begins_word"] = 'h="bai"' in line
        elif line == "<prop>":
            current["kind"] = "nonstandard"
        else:
            for tag, key in (("hobe", "better"), ("erabili", "usual"), ("sugg", "suggestions")):
                value = _inner(line, tag)
                if value is not None:
                    current[key].append(value)


def _quote_cohorts(text: str) -> str:
    # vislcg3 reads word cohorts as "<form>" only.
    lines = text.split("\n")
    for i, line in enumerate(lines):
        if len(line) >= 4 and line.startswith('<"') and line.endswith('">'):
            lines[i] = '"<' + line[2:-2] + '>"'
    return "\n".join(lines)


class Engine(_Engine):
    """The analyser: the networks listed in a configuration file and,
    optionally, a personal dictionary file.

    ``Engine()`` uses the bundled Basque data, found as the ``tarvola``
    tool finds it (``TARVOLA_CONFIG``, the data installed with the package,
    beside an installed tool, the build tree). ``config`` names another
    configuration file, ``dictionary`` a personal dictionary file.

    Raises FileNotFoundError when the configuration, a table it lists or
    the dictionary is missing, ValueError when the configuration is
    unusable.

    Threads: one call at a time per Engine; ``copy()`` gives an engine that
    shares the loaded tables and runs in parallel with this one.
    """

    def __init__(self, config: Optional[PathLike] = None, dictionary: Optional[PathLike] = None,
                 *, share: Optional["Engine"] = None) -> None:
        if config is None and share is None:
            config = _default_config()
        super().__init__(config, dictionary, share=share)

    def copy(self) -> "Engine":
        """An engine sharing this one's tables and dictionary, for another
        thread. Cheap: nothing is loaded."""
        return type(self)(share=self)

    __copy__ = copy

    def __repr__(self) -> str:
        return "tarvola.Engine(config=%r, dictionary=%r)" % (self.config, self.dictionary)

    def analyze_text(self, text: Text, *, paragraph_mode: str = "line") -> Iterator[Sentence]:
        """Yields the sentences of the text, each with its tokens and their
        readings (personal dictionary first, then the networks).

        Paragraphs are lines (``paragraph_mode="blank-line"``: runs of
        non-blank lines), cut as the tool cuts them when very long.
        """
        for number, piece in enumerate(self._pieces(text, paragraph_mode), 1):
            for s_number, (_, s_text, tokens) in enumerate(self._sentences(piece, number), 1):
                yield Sentence(number, s_number, s_text,
                               [Token(f, space, caps, readings) for f, space, caps, readings in tokens])

    def check(self, text: Text, *, suggest: bool = False, xml: bool = False,
              paragraph_mode: str = "line") -> Union[List[Verdict], str]:
        """The checker's verdict on every token, with replacements for
        non-standard forms and suggestions for unknown words (``suggest``
        also runs the slower spelling search). ``xml=True`` returns the
        correction document instead, as ``tarvola check`` writes it."""
        documents = [(n, self._check(piece, suggest))
                     for n, piece in enumerate(self._pieces(text, paragraph_mode), 1)]
        if xml:
            return "".join(d for _, d in documents)
        return [v for n, d in documents for v in _parse_check(d, n)]

    def cg3(self, text: Text, *, attributes: bool = False, vislcg3: bool = False,
            paragraph_mode: str = "line") -> str:
        """Constraint Grammar cohorts, as ``tarvola cg3`` writes them
        (``vislcg3=True`` writes word cohorts as "<form>")."""
        out = "".join(self._cg3(piece, n, attributes)
                      for n, piece in enumerate(self._pieces(text, paragraph_mode), 1))
        return _quote_cohorts(out) if vislcg3 else out

    def multext(self, text: Text, *, attributes: bool = False, paragraph_mode: str = "line") -> str:
        """Multext lines, as ``tarvola multext`` writes them."""
        return "".join(self._multext(piece, n, attributes)
                       for n, piece in enumerate(self._pieces(text, paragraph_mode), 1))

    def words(self) -> List[DictionaryEntry]:
        """The words of the personal dictionary file."""
        return [DictionaryEntry(*row) for row in self._words()]

    def _pieces(self, text: Text, paragraph_mode: str):
        if paragraph_mode not in ("line", "blank-line"):
            raise ValueError("paragraph_mode must be 'line' or 'blank-line', not %r" % (paragraph_mode,))
        return self._split(text, paragraph_mode == "blank-line")
