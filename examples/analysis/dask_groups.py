#!/usr/bin/env python3
"""Summaries of the groups of a table, which the workers of a Dask cluster share among them.

    dask_groups.py [OPTIONS] FILE GROUP NUMBER    for instance examples/data/chickwts.csv feed weight
    --scheduler=ADDRESS    use that cluster, on which the package is installed, instead of two processes of this machine
    --alone                do all of it in this process
    --exact                print hexadecimal numbers, to the bit

Shows for each group of the texts in the column GROUP how many numbers there are in the column NUMBER, their mean, deviation and
median, and the standard error of the median from resamples (the bootstrap of Efron, The Annals of Statistics 7, 1979).

A group is a part of the work, and a part is all that a worker needs: the library keeps nothing between calls but its random
source. Each part chooses the generator and seeds it by the part's own number, so its draws do not depend on which worker
takes it, nor on what that worker has done before.
"""

import sys

import numpy
from distributed import Client, LocalCluster

import csv_table
import korvelmathtools as kmt

WORKERS = 2
RESAMPLES = 200
MERSENNE_TWISTER = 1
SEED = 20260101  # of all parts together


def read(path, group, number):
    """The numbers of each group, NaN where one is missing; the groups in order of their first row."""
    columns = csv_table.read(path, [number], [group])
    groups = {}
    for name, value in zip(columns[group], columns[number]):
        groups.setdefault(name, []).append(value)
    return groups


def seed_of(part):
    """A seed from 1 to 2147483646 that follows from the number of the part alone."""
    (word,) = numpy.random.SeedSequence([SEED, part]).generate_state(1)
    return numpy.array(1 + int(word) % (2**31 - 2), dtype=numpy.int32)


def summarise(part, numbers):
    """What is shown of one group. A worker calls this; a worker of one thread, for the random source has no lock."""
    cells = kmt.from_nan(numbers)
    kept = cells[~kmt.is_missing(cells)]
    if len(kept) < 2:
        return [len(kept), *[kmt.MISSING] * 4]
    ones, none = numpy.ones(len(kept)), numpy.zeros(len(kept), dtype=numpy.int16)
    moments = kmt.VB_V_MeanStdev(kept, iMissing=none, w=ones, bUnbiased=True, bFreq=True)
    median = kmt.VB_V_QuantileM(kept, iMissing=none, q=0.5)
    kmt.Cpp_set_rand_algo(MERSENNE_TWISTER)
    draws = kmt.VB_M_GenerateRandom01(rows=len(kept), cols=RESAMPLES, seed=seed_of(part), flag=True).out
    resamples = kept[numpy.minimum((draws * len(kept)).astype(int), len(kept) - 1)]
    medians = numpy.array([kmt.VB_V_QuantileM(resample, iMissing=none, q=0.5) for resample in resamples.T])
    error = kmt.VB_V_MeanStdev(medians, iMissing=numpy.zeros(RESAMPLES, dtype=numpy.int16), w=numpy.ones(RESAMPLES),
                               bUnbiased=True, bFreq=True)
    return [len(kept), moments.mean, moments.sd, median, error.sd]


def summarise_alone(groups):
    """The groups one after the other, in this process."""
    return [summarise(part, numbers) for part, numbers in enumerate(groups.values())]


def summarise_on(client, groups):
    """The groups on whichever workers are free. The answers come back in the order of the groups."""
    return client.gather(client.map(summarise, range(len(groups)), list(groups.values()), pure=False))


def summarise_by(scheduler, groups):
    """The groups on the workers of a scheduler, or on processes of this machine."""
    if scheduler:
        with Client(scheduler) as client:
            return summarise_on(client, groups)
    with LocalCluster(n_workers=WORKERS, threads_per_worker=1, dashboard_address=":0") as cluster, Client(cluster) as client:
        return summarise_on(client, groups)


def show(groups, summaries, exact):
    print(f"{'group':16}", *(f"{name:>12}" for name in ("numbers", "mean", "deviation", "median", "its error")))
    for name, summary in zip(groups, summaries):
        print(f"{name:16}", *(float(value).hex() if exact else f"{'-' if kmt.is_missing(value) else format(value, '.6g'):>12}"
                              for value in summary))


def main(words):
    options = dict(word.partition("=")[::2] for word in words if word.startswith("--"))
    for option in options:
        if option not in ("--scheduler", "--alone", "--exact"):
            sys.exit(f"dask_groups: no option {option}")
    arguments = [word for word in words if not word.startswith("--")]
    if len(arguments) != 3:
        sys.exit("usage: dask_groups.py [--scheduler=ADDRESS] [--alone] [--exact] FILE GROUP NUMBER")
    try:
        groups = read(*arguments)
    except csv_table.BadTable as problem:
        sys.exit(f"dask_groups: {arguments[0]}: {problem}")
    try:
        summaries = summarise_alone(groups) if "--alone" in options else summarise_by(options.get("--scheduler"), groups)
    except (OSError, ValueError) as problem:
        sys.exit(f"dask_groups: {options.get('--scheduler', 'the workers')}: {problem}")
    show(groups, summaries, "--exact" in options)


if __name__ == "__main__":
    main(sys.argv[1:])
