"""The Dask layer: the example on a two-process local cluster gives the
single-process results, and each worker builds its engine once."""
import json
import os
import subprocess
import sys

import pytest

distributed = pytest.importorskip("distributed")
import tarvola  # noqa: E402
import tarvola.dask as td  # noqa: E402
from conftest import SOURCE, corpus_files, run_tool  # noqa: E402

SAMPLE = ("Nere etxea handia da. Etxia xyzw?\n"
          "\n"
          "Gizonarekin mendira joan ginen, eta Café ẞtraße ikusi genuen.\n") * 40


@pytest.fixture(scope="module")
def inputs(tmp_path_factory):
    # A few hundred lines of each corpus file keep the run short; without
    # the corpus, a sample of the package's own.
    folder = tmp_path_factory.mktemp("input")
    for name in corpus_files() or []:
        with open(name, encoding="utf-8") as f:
            text = "".join(f.readlines()[:300])
        (folder / os.path.basename(name)).write_text(text, encoding="utf-8")
    if not corpus_files():
        (folder / "sample.txt").write_text(SAMPLE, encoding="utf-8")
    return sorted(str(p) for p in folder.iterdir())


@pytest.fixture(scope="module")
def client():
    cluster = distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True,
                                       dashboard_address=None)
    with distributed.Client(cluster) as c:
        yield c
    cluster.close()


def single_process_records(path):
    engine = tarvola.Engine()
    with open(path, encoding="utf-8") as f:
        text = f.read()
    return [{"paragraph": s.paragraph, "sentence": s.number, "index": i, "form": t.form,
             "space_after": t.space_after, "readings": [r.as_dict() for r in t.readings]}
            for s in engine.analyze_text(text) for i, t in enumerate(s.tokens, 1)]


def cohort_forms(cg3):
    return [line[2:-2] for line in cg3.splitlines() if line.startswith('<"') and line.endswith('">')]


def test_example_on_two_workers_equals_the_single_process_run(inputs, tool, tmp_path):
    # JSON Lines here; the CG3 files are the next test's.
    fmt = "jsonl"
    out = tmp_path / "out"
    done = subprocess.run(
        [sys.executable, os.path.join(SOURCE, "examples", "dask_corpus.py"),
         os.path.dirname(inputs[0]), str(out), "--workers", "2", "--block-lines", "80",
         "--format", fmt],
        capture_output=True, text=True, timeout=300)
    assert done.returncode == 0, done.stderr
    for path in inputs:
        with open(path, "rb") as f:
            cg3 = run_tool(tool, "cg3", stdin=f.read())
        name = os.path.splitext(os.path.basename(path))[0]
        with open(out / (name + "." + fmt), encoding="utf-8") as f:
            records = [json.loads(line) for line in f]
        assert records == single_process_records(path)
        # The tokens are the tool's cohorts, in order.
        assert [r["form"] for r in records] == cohort_forms(cg3)


def test_cg3_files_equal_the_tools_and_engines_load_once(client, inputs, tool, tmp_path):
    written = td.write_files(inputs, str(tmp_path), format="cg3", block_lines=50)
    for path, target in zip(inputs, written):
        with open(target, encoding="utf-8") as f:
            assert f.read() == run_tool(tool, "cg3", path)
    loads = client.run(lambda: __import__("tarvola.dask").dask._loads)
    assert sorted(loads.values()) == [1, 1]


def test_bags_and_dataframe(client, inputs):
    tokens = td.analyze_files(inputs[:1], block_lines=50)
    records = tokens.compute()
    expected = single_process_records(inputs[0])
    assert [(r["paragraph"], r["form"]) for r in records] == \
        [(r["paragraph"], r["form"]) for r in expected]
    df = td.to_dataframe(tokens).compute()
    assert len(df) == sum(max(1, len(r["readings"])) for r in records)
    import dask.bag as db
    paragraphs = db.from_sequence(["Etxea handia da.", "Mendian gaude."], npartitions=2)
    forms = [r["form"] for r in td.analyze_paragraphs(paragraphs).compute()]
    assert forms == ["Etxea", "handia", "da", ".", "Mendian", "gaude", "."]
    with pytest.raises(ValueError):
        td.write_files(inputs, "unused", format="xml")
