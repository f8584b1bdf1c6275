#!/usr/bin/env python3
"""Annotates a directory of Basque text (UTF-8, *.txt) into JSON Lines on a
Dask cluster: OUTPUT/NAME.jsonl per input file, one token a line with its
readings (or NAME.cg3 with --format cg3, as `tarvola cg3` writes it).

    # on this machine: a local cluster of 2 worker processes
    python3 examples/dask_corpus.py corpus/ annotated/ --workers 2
    # on a running cluster (workers must reach the same input paths; add
    # --shared-output when they also see the output folder)
    python3 examples/dask_corpus.py /shared/corpus /shared/out --scheduler tcp://host:8786

Prints the number of tokens and the throughput on standard error.
"""
import argparse
import glob
import os
import sys
import time


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("input", help="folder of UTF-8 text files")
    parser.add_argument("output", help="folder for the annotated files")
    where = parser.add_mutually_exclusive_group()
    where.add_argument("--scheduler", help="address of a running Dask scheduler")
    where.add_argument("--workers", type=int, default=2,
                       help="worker processes of a local cluster (default 2)")
    parser.add_argument("--format", choices=["jsonl", "cg3"], default="jsonl")
    parser.add_argument("--pattern", default="*.txt", help="input file names (default *.txt)")
    parser.add_argument("--config", help="network configuration (default: the bundled data)")
    parser.add_argument("--dictionary", help="personal dictionary file")
    parser.add_argument("--block-lines", type=int, default=2000, help="lines per task")
    parser.add_argument("--shared-output", action="store_true",
                        help="the workers of --scheduler see OUTPUT too: they write it directly")
    args = parser.parse_args(argv)

    from distributed import Client, LocalCluster
    import tarvola.dask as td

    paths = sorted(p for p in glob.glob(os.path.join(args.input, args.pattern)) if os.path.isfile(p))
    if not paths:
        parser.error("no %s files in %s" % (args.pattern, args.input))
    config = os.path.abspath(args.config) if args.config else None
    dictionary = os.path.abspath(args.dictionary) if args.dictionary else None

    if args.scheduler:
        client = Client(args.scheduler)
        cluster = None
    else:
        # One thread per worker process: the engine releases the GIL, but
        # processes are what a real cluster has, so the figures carry over.
        cluster = LocalCluster(n_workers=args.workers, threads_per_worker=1, processes=True,
                               dashboard_address=None)
        client = Client(cluster)
    try:
        start = time.perf_counter()
        written = td.write_files(paths, args.output, format=args.format, config=config,
                                 dictionary=dictionary, block_lines=args.block_lines,
                                 gather=bool(args.scheduler) and not args.shared_output)
        took = time.perf_counter() - start
    finally:
        client.close()
        if cluster is not None:
            cluster.close()
    tokens = 0
    for w in written:
        with open(w, encoding="utf-8") as f:
            # A token is a JSON line, or a word cohort <"form"> of CG3.
            tokens += sum(1 for line in f if args.format == "jsonl" or line.startswith('<"'))
    print("%d files, %d tokens in %.2f s (%.0f tokens/s)"
          % (len(written), tokens, took, tokens / took if took else 0), file=sys.stderr)
    return 0


if __name__ == "__main__":
    sys.exit(main())
