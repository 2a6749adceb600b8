#!/usr/bin/env python3
"""The example that spreads groups over worker processes: the same bits wherever a group is summarised."""

import os
import statistics
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import numpy
from distributed import Client, LocalCluster

import dask_groups
import korvelmathtools as kmt

ROOT = Path(__file__).resolve().parents[2]
PROGRAM = ROOT / "examples" / "analysis" / "dask_groups.py"
CHICKS = [str(ROOT / "examples" / "data" / "chickwts.csv"), "feed", "weight"]


def bits(summaries):
    return [[float(value).hex() for value in summary] for summary in summaries]


def placed(part, numbers):
    """A summary, and the process that made it."""
    return dask_groups.summarise(part, numbers), os.getpid()


class Workers(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.groups = dask_groups.read(*CHICKS)
        cls.alone = bits(dask_groups.summarise_alone(cls.groups))
        cls.cluster = LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=":0")
        cls.client = Client(cls.cluster)

    @classmethod
    def tearDownClass(cls):
        cls.client.close()
        cls.cluster.close()

    def summaries_with_part_on(self, worker_of):
        """The parts on the workers that the function of their number says, and the processes that took part."""
        workers = sorted(self.client.scheduler_info()["workers"])
        self.assertEqual(len(workers), 2)
        futures = [self.client.submit(placed, part, numbers, pure=False, workers=[workers[worker_of(part)]],
                                      allow_other_workers=False) for part, numbers in enumerate(self.groups.values())]
        summaries, processes = zip(*self.client.gather(futures))
        return bits(summaries), set(processes)

    def test_whichever_worker_takes_a_part(self):
        for worker_of, count in ((lambda part: part % 2, 2), (lambda part: 1 - part % 2, 2), (lambda part: 1, 1)):
            found, processes = self.summaries_with_part_on(worker_of)
            self.assertEqual(found, self.alone)
            self.assertEqual(len(processes), count)
            self.assertNotIn(os.getpid(), processes)

    def test_the_example_itself(self):
        self.assertEqual(bits(dask_groups.summarise_on(self.client, self.groups)), self.alone)

    def test_a_part_alone(self):
        """What was drawn before does not matter, nor by which generator."""
        parts = list(self.groups.values())
        for part in reversed(range(len(parts))):
            kmt.Cpp_set_rand_algo(part % 2)
            kmt.VB_M_GenerateRandom01(rows=part, cols=1, flag=True, seed=numpy.array(7, dtype=numpy.int32))
            self.assertEqual(bits([dask_groups.summarise(part, parts[part])]), [self.alone[part]])

    def test_each_part_has_draws_of_its_own(self):
        seeds = [int(dask_groups.seed_of(part)) for part in range(1000)]
        self.assertEqual(len(set(seeds)), 1000)
        self.assertTrue(all(0 < seed < 2**31 - 1 for seed in seeds))
        numbers = list(self.groups.values())[0]
        self.assertNotEqual(dask_groups.summarise(0, numbers)[4], dask_groups.summarise(1, numbers)[4])

    def test_the_numbers(self):
        """By the Python library's statistics."""
        for numbers, summary in zip(self.groups.values(), dask_groups.summarise_alone(self.groups)):
            self.assertEqual(summary[0], len(numbers))
            self.assertAlmostEqual(summary[1], statistics.fmean(numbers), delta=1e-10)
            self.assertAlmostEqual(summary[2], statistics.stdev(numbers), delta=1e-10)
            self.assertEqual(summary[3], statistics.median(numbers))
            self.assertLess(0.1 * summary[2] / len(numbers) ** 0.5, summary[4])
            self.assertLess(summary[4], 3 * summary[2] / len(numbers) ** 0.5)

    def run_program(self, *words, **settings):
        done = subprocess.run([sys.executable, PROGRAM, *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              encoding="utf-8", check=False, timeout=240, env=dict(os.environ, **settings))
        return done.returncode, done.stdout, done.stderr

    def test_the_program(self):
        # A cluster on a busy machine may complain on the error stream of how slow it is.
        for options in ([], [f"--scheduler={self.cluster.scheduler_address}"]):
            code, out, err = self.run_program("--exact", *options, *CHICKS)
            self.assertEqual(code, 0, err)
            self.assertEqual([line.split()[1:] for line in out.splitlines()[1:]], self.alone)
        code, out, err = self.run_program("--alone", *CHICKS)
        self.assertEqual((code, err), (0, ""))
        self.assertRegex(out.splitlines()[3], "^soybean +14 +246.429 +54.1291 +248 +[0-9.]+$")

    def refused(self, message, *words):
        """A text as exit code is told on the error stream, and is 1 to the shell."""
        with self.assertRaisesRegex(SystemExit, f"^{message}$"):
            dask_groups.main(words)

    def test_mistakes(self):
        self.assertEqual(self.run_program("--mac", *CHICKS), (1, "", "dask_groups: no option --mac\n"))
        self.refused("usage: .*", *CHICKS[:2])
        self.refused("dask_groups: nowhere.csv: No such file or directory", "nowhere.csv", "feed", "weight")
        self.refused(r"dask_groups: .*chickwts\.csv: no column mass", *CHICKS[:2], "mass")
        code, out, err = self.run_program("--scheduler=tcp://127.0.0.1:1", *CHICKS,
                                          DASK_DISTRIBUTED__COMM__TIMEOUTS__CONNECT="1s")
        self.assertEqual((code, out), (1, ""))
        self.assertRegex(err, "^dask_groups: tcp://127.0.0.1:1: Timed out .*\n$")
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "table.csv"
            for text, message in (("", "no column weight"), ("feed,weight\n", "no rows"),
                                  ("feed,weight\na\n", "line 2 has 1 cells, not 2"),
                                  ("feed,weight\na,b\n", "line 2: b is not a number")):
                file.write_text(text, encoding="ascii")
                self.refused(f"dask_groups: {file}: {message}", "--alone", str(file), "feed", "weight")

    def test_missing_numbers(self):
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "table.csv"
            file.write_text("feed,weight\na,1\na,NA\na,3\nb,\nb,5\n", encoding="ascii")
            code, out, _ = self.run_program("--alone", str(file), "feed", "weight")
            self.assertEqual(code, 0)
            self.assertRegex(out.splitlines()[1], "^a +2 +2 +1.41421 +2 ")
            self.assertRegex(out.splitlines()[2], "^b +1( +-){4}$")


if __name__ == "__main__":
    unittest.main()
