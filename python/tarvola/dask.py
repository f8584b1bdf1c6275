"""Corpus-scale analysis on a Dask cluster.

Works with whatever Dask scheduler is active: create a
``distributed.Client`` first (``Client(LocalCluster(n_workers=4,
threads_per_worker=1))`` on a laptop, ``Client("tcp://scheduler:8786")``
on a cluster whose workers can import tarvola and read the files), then:

    import tarvola.dask as td
    bag = td.analyze_files(["a.txt", "b.txt"])          # token records
    df = td.to_dataframe(bag)                            # one row per reading
    td.write_files(["a.txt"], "out/", format="jsonl")    # out/a.jsonl

Each worker process loads the engine once, on its first task, and keeps it
for every later task (each worker thread gets a copy sharing its tables).
Files are cut into blocks of lines, so that one large file also spreads
over the workers; results come back in file order, paragraphs numbered as
``tarvola cg3`` numbers them.

A token record is a dict: file, paragraph, sentence, index (from 1), form,
space_after and readings (each Reading.as_dict(), the tool's JSON fields).
"""
from __future__ import annotations

import os
import shutil
import tempfile
import threading
from typing import Any, Dict, Iterable, List, Optional, Sequence, Tuple

import dask
import dask.bag as db

import tarvola

__all__ = ["worker_engine", "analyze_files", "analyze_paragraphs", "write_files", "to_dataframe",
           "DEFAULT_BLOCK_LINES"]

#: Lines per task when files are cut into blocks.
DEFAULT_BLOCK_LINES = 2000

_lock = threading.Lock()
_engines: Dict[Tuple[Optional[str], Optional[str]], "tarvola.Engine"] = {}
_local = threading.local()
_loads = 0  # engines built in this process (the tests read it)


def worker_engine(config: Optional[str] = None, dictionary: Optional[str] = None) -> "tarvola.Engine":
    """The engine of this process for (config, dictionary): built on first
    use, then reused by every task; each thread gets its own copy."""
    global _loads
    key = (config, dictionary)
    copies = getattr(_local, "copies", None)
    if copies is None:
        copies = _local.copies = {}
    if key not in copies:
        with _lock:
            base = _engines.get(key)
            if base is None:
                base = _engines[key] = tarvola.Engine(config, dictionary)
                _loads += 1
        copies[key] = base.copy()
    return copies[key]


def _records(engine, text: str, first_paragraph: int, file: Optional[str], mode: str) -> List[dict]:
    out = []
    for s in engine.analyze_text(text, paragraph_mode=mode):
        for i, t in enumerate(s.tokens, 1):
            out.append({"file": file, "paragraph": first_paragraph + s.paragraph - 1,
                        "sentence": s.number, "index": i, "form": t.form,
                        "space_after": t.space_after,
                        "readings": [r.as_dict() for r in t.readings]})
    return out


def _blocks(path: str, block_lines: int, mode: str) -> List[Tuple[int, int]]:
    # Byte ranges of the file that end at line ends (at blank lines in
    # blank-line mode), where the tool's paragraphs end too, so the blocks
    # analysed one by one give the tool's paragraphs.
    ranges, start, at, lines = [], 0, 0, 0
    with open(path, "rb") as f:
        for line in f:
            at += len(line)
            lines += 1
            if lines >= block_lines and (mode == "line" or not line.strip(b" \t\r\n")):
                ranges.append((start, at))
                start, lines = at, 0
    if at > start:
        ranges.append((start, at))
    return ranges


def _read(path: str, start: int, end: int) -> str:
    # Input is UTF-8; a malformed sequence becomes U+FFFD.
    with open(path, "rb") as f:
        f.seek(start)
        return f.read(end - start).decode("utf-8", "replace")


def _plan(paths: Sequence[str], block_lines: int, mode: str, config, dictionary):
    """(path, start, end, first paragraph number) for every block, from a
    cheap first pass on the workers that only counts paragraphs: only
    offsets and counts travel, never the text."""
    def count(path):
        engine = worker_engine(config, dictionary)
        return [(a, b, len(engine._split(_read(path, a, b), mode == "blank-line")))
                for a, b in _blocks(path, block_lines, mode)]

    counted = dask.compute(*[dask.delayed(count, pure=False)(p) for p in paths])
    plan = []
    for path, blocks in zip(paths, counted):
        first = 1
        for a, b, pieces in blocks:
            plan.append((path, a, b, first))
            first += pieces
    return plan


def analyze_files(paths: Iterable[str], *, config: Optional[str] = None,
                  dictionary: Optional[str] = None, paragraph_mode: str = "line",
                  block_lines: int = DEFAULT_BLOCK_LINES) -> db.Bag:
    """A bag of token records for the UTF-8 text files, in file order."""
    paths = [os.fspath(p) for p in paths]
    plan = _plan(paths, block_lines, paragraph_mode, config, dictionary)

    def analyze(item):
        path, a, b, first = item
        return _records(worker_engine(config, dictionary), _read(path, a, b), first, path,
                        paragraph_mode)

    return db.from_sequence(plan, npartitions=max(1, len(plan))).map(analyze).flatten()


def analyze_paragraphs(paragraphs: db.Bag, *, config: Optional[str] = None,
                       dictionary: Optional[str] = None) -> db.Bag:
    """A bag of token records for a bag of paragraphs (str). A record's
    paragraph is the element's position in its partition, from 1; file is
    None."""
    def analyze(partition):
        engine = worker_engine(config, dictionary)
        out = []
        for n, text in enumerate(partition, 1):
            # One element is one paragraph whatever its line breaks.
            for r in _records(engine, " ".join(str(text).split("\n")), n, None, "line"):
                out.append(r)
        return out

    return paragraphs.map_partitions(analyze)


def _render(item, fmt, config, dictionary, mode, part_dir):
    number, (path, a, b, first) = item
    text = _read(path, a, b)
    engine = worker_engine(config, dictionary)
    pieces = engine._split(text, mode == "blank-line")
    render = engine._jsonl if fmt == "jsonl" else (lambda p, n: engine._cg3(p, n, False))
    out = "".join(render(p, first + i) for i, p in enumerate(pieces))
    if part_dir is None:
        return out
    part = os.path.join(part_dir, "part%07d" % number)
    with open(part, "w", encoding="utf-8", newline="") as f:
        f.write(out)
    return part


def write_files(paths: Iterable[str], output_dir: str, *, format: str = "jsonl",
                config: Optional[str] = None, dictionary: Optional[str] = None,
                paragraph_mode: str = "line", block_lines: int = DEFAULT_BLOCK_LINES,
                gather: bool = True) -> List[str]:
    """Analyses each file on the cluster and writes OUTPUT_DIR/NAME.jsonl
    (one token a line: paragraph, sentence, index, form, space_after,
    readings) or NAME.cg3 (as ``tarvola cg3`` writes it). Returns the paths
    written.

    With ``gather`` (the default) the results travel to this process, which
    writes the files: the workers need not see OUTPUT_DIR. With
    ``gather=False`` the workers write their blocks into OUTPUT_DIR
    themselves (it must be shared with them, as on a local cluster) and
    this process only joins them: much less traffic for large outputs."""
    if format not in ("jsonl", "cg3"):
        raise ValueError("format must be 'jsonl' or 'cg3', not %r" % (format,))
    paths = [os.fspath(p) for p in paths]
    names = [os.path.splitext(os.path.basename(p))[0] + "." + format for p in paths]
    if len(set(names)) != len(names):
        raise ValueError("two input files would write the same output file")
    os.makedirs(output_dir, exist_ok=True)
    plan = _plan(paths, block_lines, paragraph_mode, config, dictionary)
    part_dir = None if gather else tempfile.mkdtemp(prefix=".tarvola-parts-", dir=output_dir)
    try:
        rendered = db.from_sequence(list(enumerate(plan)), npartitions=max(1, len(plan))).map(
            _render, format, config, dictionary, paragraph_mode, part_dir).compute()
        written = []
        for path, name in zip(paths, names):
            target = os.path.join(output_dir, name)
            with open(target, "w", encoding="utf-8", newline="") as out:
                for (source, *_), result in zip(plan, rendered):
                    if source != path:
                        continue
                    if part_dir is None:
                        out.write(result)
                    else:
                        with open(result, encoding="utf-8", newline="") as part:
                            shutil.copyfileobj(part, out)
            written.append(target)
        return written
    finally:
        if part_dir is not None:
            shutil.rmtree(part_dir, ignore_errors=True)


def to_dataframe(tokens: db.Bag):
    """A dask dataframe with one row per reading (a token without readings
    has one row with an empty lemma): file, paragraph, sentence, index,
    form, lemma, tags, network, analysis."""
    def rows(record):
        base = {k: record[k] for k in ("file", "paragraph", "sentence", "index", "form")}
        readings = record["readings"] or [{}]
        return [dict(base, lemma=r.get("lema", ""), tags=r.get("etiketa", "").strip(),
                     network=r.get("sarea", ""), analysis=r.get("analisia", ""))
                for r in readings]

    meta = {"file": object, "paragraph": "int64", "sentence": "int64", "index": "int64",
            "form": object, "lemma": object, "tags": object, "network": object, "analysis": object}
    return tokens.map(rows).flatten().to_dataframe(meta=meta)
