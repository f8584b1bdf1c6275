import glob
import os
import re
import shutil
import subprocess

import pytest

import tarvola

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.environ.get("TARVOLA_SOURCE_DIR", os.path.dirname(os.path.dirname(HERE)))
CORPUS = os.environ.get("TARVOLA_CORPUS", os.path.join(SOURCE, "..", "shared", "corpus"))


def corpus_files():
    """The UTF-8 prose files of the shared corpus (none when it is absent)."""
    return sorted(f for f in glob.glob(os.path.join(CORPUS, "*.txt"))
                  if not f.endswith(".cp1252.txt"))


@pytest.fixture(scope="session")
def tool():
    path = os.environ.get("TARVOLA_TOOL") or shutil.which("tarvola")
    if not path or not os.path.exists(path):
        pytest.skip("the tarvola tool is not built")
    return path


def run_tool(tool, *args, stdin=None):
    done = subprocess.run([tool, *args], input=stdin, capture_output=True, check=False)
    assert done.returncode in (0, 1), done.stderr.decode("utf-8", "replace")
    return done.stdout.decode("utf-8")


@pytest.fixture(scope="session")
def engine():
    return tarvola.Engine()


@pytest.fixture(scope="session")
def corpus_words():
    files = corpus_files()
    if not files:
        pytest.skip("the shared corpus is missing")
    words = set()
    for name in files:
        with open(name, encoding="utf-8") as f:
            words.update(re.findall(r"\w+", f.read()))
    return sorted(words)
