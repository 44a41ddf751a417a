#!/usr/bin/python3
"""scale_out_test.py PIMVCARD: does scale_out.py deliver every contact of every book once, whatever fails?

The clusters are on the loopback. Programs in the place of pimvcard kill workers, crash, or wait."""

import collections
import contextlib
import io
import json
import os
import pathlib
import shlex
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import dask
from distributed import Client

import scale_out

HERE = pathlib.Path(__file__).parent.absolute()
PROGRAM = HERE / "scale_out.py"
PIMVCARD = pathlib.Path(sys.argv[1]).absolute()
ENVIRONMENT = {**os.environ, "DASK_DISTRIBUTED__COMM__TIMEOUTS__CONNECT": "2s"}


def card(name, *lines):
    return "\r\n".join(["BEGIN:VCARD", "VERSION:3.0", f"FN:{name}", *lines, "END:VCARD", ""])


class Run:
    """What a run of the program left."""

    def __init__(self, status, err, output):
        self.status, self.err, self.output = status, err, output
        self.files = sorted(os.listdir(output)) if output.is_dir() else []
        self.account = json.loads((output / scale_out.ACCOUNT).read_text()) if scale_out.ACCOUNT in self.files else {}

    def contacts(self):
        """Names of books and contacts, in the order of the outputs."""
        outputs = [self.output / name for name in self.files if name.endswith(".jsonl")]
        lines = [json.loads(line) for path in outputs for line in path.read_text().splitlines()]
        return [(line["file"], line["name"]) for line in lines]


class ScaleOutTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        stack = contextlib.ExitStack()
        cls.addClassCleanup(stack.close)
        scratch = stack.enter_context(tempfile.TemporaryDirectory())
        stack.enter_context(dask.config.set({"distributed.scheduler.allowed-failures": 3}))
        cls.cluster = stack.enter_context(scale_out.local_cluster(2, scratch))
        cls.client = stack.enter_context(Client(cls.cluster))

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.books = self.folder / "books"
        self.output = self.folder / "output"
        self.expected = []  # names of books and contacts

    def add_book(self, name, *names, tail=""):
        path = self.books / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(("".join(map(card, names)) + tail).encode())
        self.expected += [(str(path), each) for each in names]
        return path

    def add_books(self, count):
        for number in range(count):
            self.add_book(f"{number:05}.vcf", f"Ada {number}", f"Bo {number}")

    def stand_in(self, script):
        """A program in the place of pimvcard. The script runs before each conversion; "$@" is the command line, $PPID
        the worker, and $marks an empty folder for what is to happen once."""
        marks = self.folder / "marks"
        marks.mkdir()
        program = self.folder / "pimvcard"
        program.write_text(f"#!/bin/sh\npimvcard={shlex.quote(str(PIMVCARD))}\nmarks={shlex.quote(str(marks))}\n"
                           f'if [ "$1" = convert ]; then\n{script}\nfi\nexec "$pimvcard" "$@"\n')
        program.chmod(0o755)
        return program

    def command(self, *words, pimvcard=PIMVCARD, is_local=False):
        where = ["--workers", "2"] if is_local else ["--scheduler", self.cluster.scheduler_address]
        if "--scheduler" in words:
            where = []
        return [PROGRAM, *where, "--pimvcard", pimvcard, "--output", self.output, *(words or [self.books])]

    def run_program(self, *words, environment=ENVIRONMENT, **options):
        process = subprocess.run(self.command(*words, **options), env=environment, stderr=subprocess.PIPE, check=False,
                                 timeout=50)
        return Run(process.returncode, process.stderr.decode(), self.output)

    def workers(self):
        self.client.wait_for_workers(2, timeout=30)
        return set(self.client.run(os.getpid).values())

    def expect_everything(self, run, status=0):
        """Every contact once, and an account and outputs that agree."""
        self.assertEqual(run.status, status, run.err)
        self.assertEqual(collections.Counter(run.contacts()), collections.Counter(self.expected), run.err)
        self.assertEqual(run.account["contacts"], len(self.expected))
        self.assertEqual(run.account["files"], sum(one["files"] for one in run.account["outputs"]))
        self.assertEqual(run.account["contacts"], sum(one["contacts"] for one in run.account["outputs"]))
        self.assertEqual(run.account["whole"], status == 0)
        self.assertEqual(run.files, sorted([scale_out.ACCOUNT, *(one["output"] for one in run.account["outputs"])]))

    def expect_failures(self, run, reasons):
        """Failures of these books, with reasons that contain these words."""
        failed = {pathlib.Path(one["file"]).name: one["reason"] for one in run.account["failed"]}
        self.assertEqual(sorted(failed), sorted(reasons), run.err)
        for name, reason in reasons.items():
            self.assertIn(reason, failed[name], name)

    def test_folders_on_this_machine_give_every_contact_in_order(self):
        for name in ("b.vcf", "a/deep/er/c.VCF", "a/new\nline.vcf", "a/-x.vcf", "a b/é.vcf"):
            self.add_book(name, "Ada", "Bo")
        (self.books / "empty.vcf").touch()
        (self.books / "notes.txt").write_text("no book")
        run = self.run_program(self.books, self.books / "a", self.books / "b.vcf", "--batch-files", "2", is_local=True)
        order = [book for book, _ in run.contacts()]
        self.expected = [(book.replace("\n", "\\n"), name) for book, name in self.expected]
        self.expect_everything(run)
        self.assertEqual(run.account["files"], 6)
        self.assertEqual(run.account["bytes"], sum(path.stat().st_size for path in self.books.rglob("*.*")) - 7)
        listed = list(scale_out.find_books([self.books], "*.vcf", str(self.output), scale_out.Account()))
        self.assertEqual(order, [book.replace("\n", "\\n") for book in listed for _ in range(2) if "empty" not in book])

    def test_thousands_of_small_books_give_every_contact(self):
        self.add_books(3210)
        run = self.run_program()
        self.expect_everything(run)
        self.assertEqual([one["files"] for one in run.account["outputs"]], [1000, 1000, 1000, 210])

    def test_killed_worker_loses_and_repeats_nothing(self):
        once = 'mkdir "$marks/killed" 2>/dev/null'
        rows = {"while its process goes on": f"if {once}; then kill -9 $PPID; fi",
                "after it wrote": f'"$pimvcard" "$@"; status=$?; if {once}; then kill -9 $PPID; fi; exit $status'}
        for when, script in rows.items():
            with self.subTest(when):
                self.setUp()
                self.add_books(60)
                before = self.workers()
                run = self.run_program("--batch-files", "10", self.books, pimvcard=self.stand_in(script))
                self.expect_everything(run)
                self.assertEqual(len(run.account["outputs"]), 6)
                self.assertEqual(len(before - self.workers()), 1)

    def test_killed_worker_in_the_midst_of_outputs_loses_and_repeats_nothing(self):
        self.add_books(200)
        before = self.workers()
        process = subprocess.Popen(self.command("--batch-files", "5", self.books, pimvcard=self.stand_in("sleep 0.1")),
                                   env=ENVIRONMENT, stderr=subprocess.PIPE)
        while not list(self.output.glob("*.jsonl")) and process.poll() is None:
            time.sleep(0.01)
        os.kill(min(before), signal.SIGKILL)
        outputs = len(list(self.output.glob("*.jsonl")))
        err = process.communicate(timeout=50)[1].decode()
        self.expect_everything(Run(process.returncode, err, self.output))
        self.assertTrue(0 < outputs < 40, outputs)
        self.assertEqual(len(before - self.workers()), 1)

    def test_book_that_kills_every_worker_is_reported_alone(self):
        name = "00007.vcf"
        no_death_allowed = {**ENVIRONMENT, "DASK_DISTRIBUTED__SCHEDULER__ALLOWED_FAILURES": "0"}
        kill = f'case "$*" in *{name}*) kill -9 $PPID; exit ;; esac'
        rows = [("after it was written", "8", f'"$pimvcard" "$@"; status=$?; {kill}; exit $status'),
                ("while others wait for the worker", "1", f"sleep 0.3; {kill}")]
        for when, most_files, script in rows:
            with self.subTest(when):
                self.setUp()
                self.add_books(12)
                self.expected = [one for one in self.expected if not one[0].endswith(name)]
                run = self.run_program("--batch-files", most_files, self.books, pimvcard=self.stand_in(script),
                                       is_local=True, environment=no_death_allowed)
                self.expect_everything(run, status=2)
                self.expect_failures(run, {name: "workers that died with it: 1"})

    def test_books_that_cannot_be_read_are_reported(self):
        self.add_books(40)
        (self.books / "dangling.vcf").symlink_to("nowhere")
        (self.books / "faulty.vcf").symlink_to("/proc/self/mem")  # can be opened, but not read
        (self.books / "folder.vcf").mkdir()
        os.mkfifo(self.books / "pipe.vcf")
        run = self.run_program(self.books, self.books / "missing.vcf", self.books / "missing")
        self.expect_everything(run, status=2)
        missing = "No such file or directory"
        self.expect_failures(run, {"dangling.vcf": missing, "faulty.vcf": "Input/output error",
                                   "pipe.vcf": "Not a regular file", "missing.vcf": missing, "missing": missing})

    def test_book_that_crashes_the_program_is_reported(self):
        self.add_books(40)
        crash = self.stand_in('case "$*" in *00017.vcf*) kill -SEGV $$ ;; esac')
        self.expected = [one for one in self.expected if not one[0].endswith("00017.vcf")]
        run = self.run_program(pimvcard=crash)
        self.expect_everything(run, status=2)
        self.expect_failures(run, {"00017.vcf": "status -11"})

    def test_failure_that_does_not_last_is_no_failure(self):
        self.add_books(40)
        once = self.stand_in('if mkdir "$marks/failed" 2>/dev/null; then exit 2; fi')
        run = self.run_program(pimvcard=once)
        self.expect_everything(run)
        self.assertEqual(len(run.account["outputs"]), 1)

    def test_books_that_are_not_whole_are_accounted_for(self):
        long_card = card("Too long", "NOTE:" + "x" * 400)
        self.add_book("cut.vcf", "Cut", tail=card("Off")[:-len("END:VCARD\r\n")])
        self.expected.append((str(self.books / "cut.vcf"), "Off"))  # repaired, so the book is whole
        self.add_book("dropped.vcf", "Left", tail="BEGIN:VCARD\r\nVERSION:3.0\r\n~~~\r\nFN:Part\r\nEND:VCARD\r\n")
        self.expected.append((str(self.books / "dropped.vcf"), "Part"))
        self.add_book("none.vcf", tail="hello\r\n")
        self.add_book("refused.vcf", "One", "Two", tail=2 * long_card)
        self.add_book("all-refused.vcf", tail=long_card)
        self.add_book("whole.vcf", "Whole")
        limited = self.stand_in("")
        limited.write_text(f'#!/bin/sh\nexec {shlex.quote(str(PIMVCARD))} --max-card-bytes 200 "$@"\n')
        losses = {"all-refused.vcf": (0, 1, 0), "dropped.vcf": (2, 0, 5), "none.vcf": (0, 0, 0),
                  "refused.vcf": (2, 2, 0)}
        for most_files in ("1", "100"):
            with self.subTest(batch_files=most_files):
                self.output = self.folder / most_files
                run = self.run_program("--batch-files", most_files, self.books, pimvcard=limited)
                self.expect_everything(run, status=1)
                self.assertEqual(run.account["refused"], 3)
                self.assertEqual({pathlib.Path(one["file"]).name: (one["cards"], one["refused"], one["dropped"])
                                  for one in run.account["incomplete"]}, losses)

    def test_large_books_get_batches_of_their_own(self):
        most = scale_out.BATCH_BYTES
        for name, size in (("a", 1), ("b", most), ("c", 1), ("d", most - 1), ("e", 1)):
            os.truncate(self.add_book(f"{name}.vcf"), size)
        books = [str(path) for path in sorted(self.books.iterdir())]
        batches = list(scale_out.make_batches(books, 1000))
        self.assertEqual([len(batch.books) for batch in batches], [1, 1, 2, 1])
        self.assertEqual([book for batch in batches for book in batch.books], books)

    def test_batches_fit_a_command_line(self):
        books = [f"/{number:0999}" for number in range(300)]
        batches = list(scale_out.make_batches(books, 1000))
        self.assertEqual([book for batch in batches for book in batch.books], books)
        self.assertEqual({len(batch.books) for batch in batches}, {99, 3})

    def test_parts_of_a_batch_are_its_books_under_new_names(self):
        for count in (2, 31, 32, 33, 1000):
            batch = scale_out.Batch("000007", [f"{number}.vcf" for number in range(count)])
            parts = batch.parts()
            self.assertEqual([book for part in parts for book in part.books], batch.books, count)
            self.assertEqual([part.name for part in parts], sorted({part.name for part in parts}), count)
            self.assertTrue(1 < len(parts) <= scale_out.PARTS, count)

    def test_output_that_is_not_empty_stays(self):
        self.add_books(1)
        self.output.mkdir()
        (self.output / "000000.jsonl").write_text("mine")
        run = self.run_program()
        self.assertEqual((run.status, run.files), (2, ["000000.jsonl"]), run.err)
        self.assertEqual((self.output / "000000.jsonl").read_text(), "mine")
        self.assertIn("not empty", run.err)

    def test_output_inside_the_books_is_not_read(self):
        self.add_books(3)
        self.output = self.books / "output"
        self.expect_everything(self.run_program("--name", "*", self.books))

    def test_job_that_cannot_start_leaves_an_empty_output(self):
        self.add_books(1)
        rows = [(["--scheduler", "127.0.0.1:1", self.books], PIMVCARD, "127.0.0.1:1"),
                ([self.books], self.folder / "nothing", "nothing")]
        for words, pimvcard, reason in rows:
            with self.subTest(reason):
                run = self.run_program(*words, pimvcard=pimvcard)
                self.assertEqual((run.status, run.files), (2, []), run.err)
                self.assertIn(reason, run.err.splitlines()[-1])

    def test_interrupted_job_has_no_account(self):
        self.add_books(20)
        wait = self.stand_in('touch "$marks/started"; sleep 1')
        process = subprocess.Popen(self.command("--batch-files", "1", self.books, pimvcard=wait), env=ENVIRONMENT,
                                   stderr=subprocess.DEVNULL)
        while not (self.folder / "marks/started").exists() and process.poll() is None:
            time.sleep(0.01)
        process.send_signal(signal.SIGINT)
        self.assertEqual(process.wait(timeout=30), 130)
        self.assertNotIn(scale_out.ACCOUNT, os.listdir(self.output))

    def test_commands_of_the_documents_are_understood(self):
        project = HERE.parent.parent
        pages = [*project.glob("*.md"), *project.glob("docs/*.md")]
        commands = [line.split()[1:] for page in pages for line in page.read_text().splitlines()
                    if line.strip().startswith("examples/scale-out/scale_out.py ")]
        self.assertTrue(commands)
        for command in commands:
            with contextlib.redirect_stderr(io.StringIO()) as err:
                try:
                    scale_out.parse_arguments(command)
                except SystemExit:
                    self.fail(f"{command}: {err.getvalue()}")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]], warnings="ignore")
