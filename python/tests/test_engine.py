"""The package against the command-line tool, and its behaviour on bad
input, under threads and over many calls."""
import concurrent.futures
import gc
import json
import os
import resource
import tracemalloc

import pytest

import tarvola
from conftest import corpus_files, run_tool


def test_readings_equal_the_tools_for_every_corpus_word(engine, tool, corpus_words):
    # The tool's JSON records, one per word, against Reading.as_dict().
    expected = [json.loads(line) for line in
                run_tool(tool, "analyze", "--format", "json", stdin="\n".join(corpus_words).encode()).splitlines()]
    assert [r["word"] for r in expected] == corpus_words
    got = engine.analyze_many(corpus_words)
    mismatches = [w for w, want, have in zip(corpus_words, expected, got)
                  if [r.as_dict() for r in have] != want["readings"]]
    assert mismatches == []
    assert sum(1 for g in got if g) > len(corpus_words) // 2  # the real data set, not an empty one
    assert [r.as_dict() for r in engine.analyze(corpus_words[-1])] == expected[-1]["readings"]


@pytest.mark.parametrize("command", ["cg3", "check", "multext"])
def test_paragraph_renderings_equal_the_tools(engine, tool, command):
    files = corpus_files()
    if not files:
        pytest.skip("the shared corpus is missing")
    with open(files[0], encoding="utf-8") as f:
        text = "".join(f.readlines()[:60])
    want = run_tool(tool, command, stdin=text.encode())
    have = {"cg3": engine.cg3, "multext": engine.multext,
            "check": lambda t: engine.check(t, xml=True)}[command](text)
    assert have == want


def test_text_views_agree(engine):
    text = "Nere etxea handia da. Etxia xyzw?\nBigarren lerroa."
    sentences = list(engine.analyze_text(text))
    assert [(s.paragraph, s.number) for s in sentences] == [(1, 1), (1, 2), (2, 1)]
    assert [t.form for t in sentences[0].tokens] == ["Nere", "etxea", "handia", "da", "."]
    verdicts = engine.check(text)
    assert [v.form for v in verdicts] == [t.form for s in sentences for t in s.tokens]
    by_form = {v.form: v for v in verdicts}
    assert by_form["etxea"].kind == "ok"
    assert by_form["Nere"].kind == "nonstandard" and by_form["Nere"].replacements
    assert by_form["xyzw"].kind == "unknown"
    assert '"<Nere>"' in engine.cg3(text, vislcg3=True)


def test_code_page_boundary(engine):
    # é is in code page 1252, as bytes or as str; ẞ and the emoji are not:
    # the word is unknown but comes back whole, as with the tool.
    assert engine.analyze(b"etxean") == engine.analyze("etxean")
    (sentence,) = engine.analyze_text("Café ẞtraße 😀.")
    assert [t.form for t in sentence.tokens][:3] == ["Café", "ẞtraße", "😀"]
    assert engine.analyze("ẞtraße") == []
    import pickle
    readings = engine.analyze("etxean") + sentence.tokens[1].readings
    assert pickle.loads(pickle.dumps(readings)) == readings
    with pytest.raises(ValueError, match="outside code page 1252"):
        engine.analyze("".join(chr(0x4E00 + i) for i in range(40)))


def test_bad_input_raises(engine, tmp_path):
    with pytest.raises(FileNotFoundError, match="not found"):
        tarvola.Engine(config=tmp_path / "missing.conf")
    conf = tmp_path / "broken.conf"
    conf.write_text("missingPG.txt\n")
    with pytest.raises(FileNotFoundError, match="missingPG.txt"):
        tarvola.Engine(config=conf)
    with pytest.raises(FileNotFoundError):
        tarvola.Engine(dictionary=tmp_path / "none.dic")
    with pytest.raises(FileNotFoundError):
        tarvola.Table(tmp_path / "noPG.txt")
    with pytest.raises(TypeError):
        engine.analyze(42)
    with pytest.raises(ValueError, match="no network"):
        engine.analyze("etxea", network="nonesuch")
    with pytest.raises(ValueError):
        engine.check("etxea", paragraph_mode="word")
    with pytest.raises(ValueError, match="no personal dictionary"):
        engine.add_word("Txapeldun", "<ARR>")
    with pytest.raises(ValueError, match="not closed"):
        engine.generate("<" + "a" * 200, "<IZB>")  # the library would end the process
    with pytest.raises(UnicodeEncodeError):
        engine.analyze("\udc80")
    assert engine.analyze("") == [] and engine.analyze("x" * 100000) == []


def test_personal_dictionary(tmp_path, tool):
    dic = tmp_path / "my.dic"
    dic.write_text("")
    engine = tarvola.Engine(dictionary=dic)
    assert not engine.is_valid("Zorrotzaurre")
    assert engine.add_word("Zorrotzaurre", "<IZB>")
    assert not engine.add_word("Zorrotzaurre", "<IZB>")
    with pytest.raises(ValueError, match="category"):
        engine.add_word("Bestea", "<XYZ>")
    assert engine.words() == [tarvola.DictionaryEntry("Zorrotzaurre", "<IZB>")]
    assert engine.is_valid("Zorrotzaurre")
    readings = engine.analyze("Zorrotzaurren")
    assert [(r.lemma, r.network) for r in readings] == [("Zorrotzaurre", "hp")]
    (record,) = [json.loads(line) for line in run_tool(
        tool, "analyze", "--format", "json", "--dict", str(dic), "Zorrotzaurren").splitlines()]
    assert [r.as_dict() for r in readings] == record["readings"]
    assert engine.remove_word("Zorrotzaurre", "<IZB>")
    assert not engine.remove_word("Zorrotzaurre", "<IZB>")
    assert engine.words() == [] and not engine.is_valid("Zorrotzaurre")


def test_table_on_its_own(engine):
    table = tarvola.Table(os.path.join(os.path.dirname(engine.config), "eumorfoPG.txt"))
    assert table.states > 0
    assert [r.analysis for r in table.analyze("etxean")] == \
        [r.analysis for r in engine.analyze("etxean", network="eumorfo")]
    assert table.analyze("etxean")


def test_threads_give_the_single_threaded_readings(engine, corpus_words):
    words = corpus_words[:4000]
    alone = [[r.as_dict() for r in rs] for rs in engine.analyze_many(words)]
    copies = [engine.copy() for _ in range(4)]

    def run(i):
        mine = copies[i]
        order = words[i * 97:] + words[:i * 97]
        got = {w: [r.as_dict() for r in mine.analyze(w)] for w in order}
        return [got[w] for w in words]

    with concurrent.futures.ThreadPoolExecutor(4) as pool:
        results = list(pool.map(run, range(4)))
    assert all(r == alone for r in results)
    # One engine shared by threads is serialised, and still right.
    with concurrent.futures.ThreadPoolExecutor(3) as pool:
        shared = list(pool.map(lambda w: [r.as_dict() for r in engine.analyze(w)], words[:500]))
    assert shared == alone[:500]


def test_no_leak_over_many_calls(engine):
    words = ["etxean", "Mendian", "xyzw", "gizonarekin", "Café"]

    def calls(n):
        for i in range(n):
            for r in engine.analyze(words[i % len(words)]):
                r.lemma, r.tags, r.marks
        engine.analyze_many(words * 10)
        engine.check("Nere etxea handia da.")

    def rss_kb():
        with open("/proc/self/statm") as f:
            return int(f.read().split()[1]) * resource.getpagesize() // 1024

    calls(20000)  # warm every cache and allocator pool first
    gc.collect()
    tracemalloc.start()
    before_py, before_rss = tracemalloc.get_traced_memory()[0], rss_kb()
    calls(100000)
    gc.collect()
    after_py, after_rss = tracemalloc.get_traced_memory()[0], rss_kb()
    tracemalloc.stop()
    assert after_py - before_py < 64 * 1024
    assert after_rss - before_rss < 2048


def test_help_is_useful():
    assert "bundled Basque data" in tarvola.Engine.__doc__
    assert "personal" in tarvola.Engine.analyze.__doc__
    assert "engine.copy()" in tarvola.__doc__
