"""Runs pytest for ctest: exit 77 (skipped) when a needed module is missing.

usage: run_pytest.py --need MODULE... -- PYTEST-ARGUMENTS
"""
import importlib.util
import sys


def main(argv):
    cut = argv.index("--")
    needs = [argv[i + 1] for i, a in enumerate(argv[:cut]) if a == "--need"]
    missing = [n for n in needs if importlib.util.find_spec(n) is None]
    if missing:
        print("skipped: Python module(s) not installed: " + ", ".join(missing)
              + " (Debian: python3-pytest python3-dask python3-distributed)")
        return 77
    import pytest
    status = pytest.main(["-q", "-p", "no:cacheprovider", "-W", "ignore::DeprecationWarning",
                          *argv[cut + 1:]])
    # Nothing collected means the test files went missing: a failure here.
    return 1 if status == 5 else int(status)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
