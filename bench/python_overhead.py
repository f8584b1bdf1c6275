"""What a call of the Python package costs beyond the library call it wraps:
analyze() per word against the same lookups timed inside C++, best of five
rounds so that a busy machine weighs on both alike.

    PYTHONPATH=build/python python3 bench/python_overhead.py [WORDS_FILE]
"""
import sys
import time

import tarvola


def main():
    path = sys.argv[1] if len(sys.argv) > 1 else "../shared/corpus/eu-ud-dev.txt"
    with open(path, encoding="utf-8") as f:
        words = [w.strip(".,;:!?\"'()") for w in f.read().split()][:3000]
    engine = tarvola.Engine()
    cpp, py = [], []
    for _ in range(5):
        cpp.append(engine._time_lookup(words, 1))
        start = time.perf_counter()
        for w in words:
            engine.analyze(w)
        py.append((time.perf_counter() - start) / len(words))
    print(f"library call {min(cpp) * 1e6:.2f} us/word, from Python {min(py) * 1e6:.2f} us/word, "
          f"overhead {(min(py) - min(cpp)) * 1e6:.2f} us/word")


if __name__ == "__main__":
    main()
