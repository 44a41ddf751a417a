#!/usr/bin/python3
"""Converts folders of address books to JSON lines, on all processors or on many machines.

Each book is read by "pimvcard convert --to json-lines". Dask's distributed scheduler hands batches of books to its
workers: processes on this machine, or with --scheduler those of a cluster.

    scale_out.py -o contacts books
    scale_out.py -o contacts --scheduler head.example.org:8786 /shared/books

All machines need pimvcard and see books and output under the same names. The output folder must be empty or new. It
gets a file for each batch, such as 000042.jsonl, whose names sort in the order of the books, and at the end
account.json:

  files, bytes  how many books were read, and their size
  contacts      how many were written
  refused       how many cards were refused
  whole         whether all books were delivered whole
  incomplete    of each book that was not: cards delivered, cards refused, bytes dropped from delivered cards
  failed        each book or folder that could not be read, and the reason
  outputs       the files of the output, each with the number of its books and contacts

If a worker dies, another one converts its batch. Only the result of one attempt becomes an output, so no contact is
written twice. A batch that fails, or with which too many workers die, is split until the book to blame is alone. That
book is reported as failed. How many deaths are too many is Dask's setting distributed.scheduler.allowed-failures. If
no worker is left, the job waits for new ones.

Exit status: 0 all books were delivered whole; 1 something was dropped or refused, or a file holds no vCard; 2 wrong
usage, or a book, a folder, a worker or the output failed; 130 interrupted. Without account.json, the output is
unfinished.
"""

import argparse
import collections
import contextlib
import dataclasses
import fnmatch
import itertools
import json
import os
import shutil
import stat
import subprocess
import sys
import tempfile

try:
    from distributed import Client, KilledWorker, LocalCluster, as_completed
except ImportError:
    print("scale_out.py: Dask's distributed scheduler is missing; Debian has it in python3-distributed", file=sys.stderr)
    sys.exit(2)

ACCOUNT = "account.json"
STAGING = ".unfinished"
BATCH_BYTES = 64 << 20
BATCH_NAMES = 100_000  # bytes of file names; any system accepts a command line of this length
PARTS = 32  # of a failed batch
RETRIES = 2  # of a batch that failed although its worker lives
WORKER_TIMEOUT = 60  # seconds until the first worker must be there


@dataclasses.dataclass
class Job:
    """What every batch needs to know."""
    pimvcard: str
    staging: str


@dataclasses.dataclass
class Batch:
    """Books that one process converts. The name is that of the output."""
    name: str
    books: list = dataclasses.field(repr=False)  # the logs of workers show what they were given

    def parts(self):
        size = -(-len(self.books) // PARTS)
        starts = range(0, len(self.books), size)
        return [Batch(f"{self.name}-{number:02}", self.books[start:start + size])
                for number, start in enumerate(starts)]


class Account:
    """What became of books: those of a batch, or all of them. Its members are those of account.json."""

    def __init__(self):
        self.files = self.bytes = self.contacts = self.refused = 0
        self.whole = True
        self.incomplete, self.failed, self.outputs = [], [], []

    def add(self, other):
        self.files += other.files
        self.bytes += other.bytes
        self.contacts += other.contacts
        self.refused += other.refused
        self.whole = self.whole and other.whole
        self.incomplete += other.incomplete
        self.failed += other.failed

    def fail(self, path, reason):
        self.whole = False
        self.failed.append({"file": path, "reason": reason})

    def sort(self):
        for entries in (self.incomplete, self.failed, self.outputs):
            entries.sort(key=lambda entry: entry.get("file") or entry["output"])

    def exit_status(self):
        return 2 if self.failed else 0 if self.whole else 1


# On the workers

def convert_batch(job, batch):
    """Writes the contacts of a batch into the staging folder. An attempt that is repeated writes the same."""
    account = Account()
    books = readable_books(batch.books, account)
    if books:
        account.files = len(books)
        output = staged_output(job, batch)
        are_whole = run_pimvcard(job, books, output)
        account.contacts = count_lines(output)
        if not are_whole:
            account.whole = False
            add_losses(job, books, account)
    return account


def readable_books(paths, account):
    books = []
    for path in paths:
        try:
            account.bytes += size_of_book(path)
            books.append(path)
        except OSError as error:
            account.fail(path, error.strerror)
    return books


def size_of_book(path):
    status = os.stat(path)
    if not stat.S_ISREG(status.st_mode):
        raise OSError(0, "Not a regular file")
    open(path, "rb").close()
    return status.st_size


def staged_output(job, batch):
    return os.path.join(job.staging, batch.name + ".jsonl")


def run_pimvcard(job, books, output):
    """Whether all books are whole. The output appears only when it is complete."""
    command = [job.pimvcard, "convert", "--quiet", "--to", "json-lines", "--force", "--output", output, "--", *books]
    process = subprocess.run(command, stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, check=False)
    if process.returncode not in (0, 1):
        text = process.stderr.decode(errors="replace").strip()
        raise RuntimeError(text or f"pimvcard ended with status {process.returncode}")
    return process.returncode == 0


def count_lines(path):
    with open(path, "rb") as file:
        return sum(block.count(b"\n") for block in iter(lambda: file.read(1 << 20), b""))


def add_losses(job, books, account):
    """Accounts for refused cards and dropped bytes by the extents of the books, one line each."""
    command = [job.pimvcard, "check", "--quiet", "--extents", "--", *books]
    with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE) as process:
        single = [b"file"] if len(books) == 1 else []  # several books have such lines
        losses = read_extents(itertools.chain(single, process.stdout))
    if process.returncode not in (0, 1) or len(losses) != len(books):
        raise RuntimeError("a book changed or failed while it was read")
    for path, loss in zip(books, losses):
        account.refused += loss.refused
        if loss.is_incomplete():
            account.incomplete.append({"file": path, "cards": loss.cards, "refused": loss.refused,
                                       "dropped": loss.dropped})


@dataclasses.dataclass
class Loss:
    """What the extents of a book say. Cards and refused cards are counted at their first extents."""
    cards: int = 0
    refused: int = 0
    dropped: int = 0
    is_empty: bool = True
    last_card: tuple = None

    def add(self, length, kind, card):
        self.is_empty = False
        if kind == b"dropped":
            self.dropped += int(length)
        elif kind in (b"boundary", b"line", b"refused"):
            is_refused = kind == b"refused"
            if self.last_card != (card, is_refused):
                self.last_card = (card, is_refused)
                self.refused += is_refused
                self.cards += not is_refused

    def is_incomplete(self):
        return self.refused > 0 or self.dropped > 0 or (self.cards == 0 and not self.is_empty)


def read_extents(lines):
    losses = []
    for line in lines:
        words = line.split()
        if words[0] == b"file":
            losses.append(Loss())
        elif words[0] != b"converted":
            _, length, kind, card = words
            losses[-1].add(length, kind, card)
    return losses


def check_worker(job):
    """Fails on a machine that lacks pimvcard or does not see the output folder."""
    subprocess.run([job.pimvcard, "--version"], stdout=subprocess.DEVNULL, check=True)
    os.stat(job.staging)


# On the machine that starts the job

class Conversion:
    """Hands out batches, puts the outputs in place, and keeps the account."""

    def __init__(self, client, job, output, account):
        self.client, self.job, self.output, self.account = client, job, output, account
        self.suspects = []

    def run(self, batches):
        """Converts batches, and then each of those with which too many workers died while nothing else runs: any
        batch that a dying worker had is suspected, and only so it is sure which one is to blame."""
        self._convert(batches, self._settle_in_crowd, self._batches_to_hand_out)
        self._convert(self.suspects, self._settle_alone, lambda: 1)

    def _convert(self, batches, settle, how_many):
        waiting = iter(batches)
        parts = collections.deque()
        running = {}
        completed = as_completed()
        while True:
            while len(running) < how_many():
                batch = parts.popleft() if parts else next(waiting, None)
                if batch is None:
                    break
                future = self.client.submit(convert_batch, self.job, batch, retries=RETRIES, pure=False)
                running[future.key] = batch
                completed.add(future)
            if not running:
                return
            future = next(completed)
            parts += settle(running.pop(future.key), future)

    def _batches_to_hand_out(self):
        """Twice as many as can run, so that no worker waits; workers come and go."""
        return max(1, 2 * sum(self.client.nthreads().values()))

    def _settle_in_crowd(self, batch, future):
        """Returns the parts of the batch that are to be converted instead."""
        if isinstance(future.exception(), KilledWorker):
            self.suspects.append(batch)
            return []
        return self._settle_alone(batch, future)

    def _settle_alone(self, batch, future):
        error = future.exception()
        if error is None:
            self._accept(batch, future.result())
        elif len(batch.books) > 1:
            return batch.parts()
        else:
            self.account.fail(batch.books[0], reason_of(error))
        return []

    def _accept(self, batch, account):
        self.account.add(account)
        if account.files:
            staged = staged_output(self.job, batch)
            name = os.path.basename(staged)
            os.rename(staged, os.path.join(self.output, name))
            self.account.outputs.append({"output": name, "files": account.files, "contacts": account.contacts})


def reason_of(error):
    if isinstance(error, KilledWorker):
        return f"workers that died with it: {error.allowed_failures + 1}"
    return str(error)


def find_books(paths, pattern, output, account):
    """The books of all folders, each once."""
    seen = set()
    for path in map(os.path.abspath, paths):
        for book in books_of_folder(path, pattern, output, account) if os.path.isdir(path) else [path]:
            if book not in seen:
                seen.add(book)
                yield book


def books_of_folder(folder, pattern, output, account):
    on_error = lambda error: account.fail(error.filename, error.strerror)
    for parent, folders, names in os.walk(folder, onerror=on_error):
        folders[:] = sorted(name for name in folders if os.path.join(parent, name) != output)
        for name in sorted(names):
            if fnmatch.fnmatchcase(name.lower(), pattern.lower()):
                yield os.path.join(parent, name)


def make_batches(books, most_files):
    """A batch ends before the book that would make it too large. A book that is too large alone is a batch."""
    numbers = itertools.count()
    batch, size, names = [], 0, 0
    for book in books:
        book_size, book_name = size_if_known(book), len(os.fsencode(book)) + 1
        if batch and (len(batch) == most_files or size + book_size > BATCH_BYTES or names + book_name > BATCH_NAMES):
            yield Batch(f"{next(numbers):06}", batch)
            batch, size, names = [], 0, 0
        batch.append(book)
        size += book_size
        names += book_name
    if batch:
        yield Batch(f"{next(numbers):06}", batch)


def size_if_known(path):
    """0 for a book that is missing: the worker reports it."""
    try:
        return os.stat(path).st_size
    except OSError:
        return 0


def local_cluster(workers, scratch):
    return LocalCluster(n_workers=workers, threads_per_worker=1, host="127.0.0.1", dashboard_address="127.0.0.1:0",
                        local_directory=scratch)


@contextlib.contextmanager
def connected_client(options):
    if options.scheduler:
        with Client(options.scheduler) as client:
            yield client
        return
    with tempfile.TemporaryDirectory() as scratch, local_cluster(options.workers, scratch) as cluster, \
            Client(cluster) as client:
        yield client


@contextlib.contextmanager
def staging_folder(output):
    os.makedirs(output, exist_ok=True)
    if os.listdir(output):
        raise FileExistsError(f"{output} is not empty")
    folder = os.path.join(output, STAGING)
    os.mkdir(folder)
    try:
        yield folder
    finally:
        shutil.rmtree(folder, ignore_errors=True)  # a process whose worker died may still write here


def write_account(account, staging, output):
    account.sort()
    staged = os.path.join(staging, ACCOUNT)
    with open(staged, "w", encoding="ascii") as file:
        json.dump(vars(account), file, indent=1)
        file.write("\n")
    os.rename(staged, os.path.join(output, ACCOUNT))


def convert(options):
    output = os.path.abspath(options.output)
    account = Account()
    with staging_folder(output) as staging, connected_client(options) as client:
        job = Job(options.pimvcard, staging)
        client.wait_for_workers(1, timeout=WORKER_TIMEOUT)
        client.run(check_worker, job)
        books = find_books(options.books, options.name, output, account)
        Conversion(client, job, output, account).run(make_batches(books, options.batch_files))
        write_account(account, staging, output)
    return account


def positive(text):
    number = int(text)
    if number < 1:
        raise ValueError
    return number


def parse_arguments(words):
    parser = argparse.ArgumentParser(prog="scale_out.py", description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("books", nargs="+", metavar="BOOKS", help="a folder of address books, or one address book")
    parser.add_argument("-o", "--output", required=True, metavar="DIR", help="the folder of the output")
    parser.add_argument("-n", "--name", default="*.vcf", metavar="PATTERN",
                        help="the names of books in folders, in any letter case; %(default)s unless given")
    where = parser.add_mutually_exclusive_group()
    where.add_argument("-s", "--scheduler", metavar="ADDRESS", help="the scheduler of a cluster")
    where.add_argument("-w", "--workers", type=positive, default=os.cpu_count(), metavar="NUMBER",
                       help="processes on this machine; as many as processors unless given")
    parser.add_argument("-b", "--batch-files", type=positive, default=1000, metavar="NUMBER",
                        help="the most books of a batch; %(default)s unless given")
    parser.add_argument("--pimvcard", default="pimvcard", metavar="PROGRAM", help="the program on the workers")
    return parser.parse_args(words)


def main():
    options = parse_arguments(sys.argv[1:])
    try:
        account = convert(options)
    except (OSError, subprocess.SubprocessError) as error:
        print(f"scale_out.py: {error}", file=sys.stderr)
        return 2
    except KeyboardInterrupt:
        return 130
    print(f"scale_out.py: {account.files} files, {account.contacts} contacts, {account.refused} cards refused, "
          f"{len(account.incomplete)} files incomplete, {len(account.failed)} failed", file=sys.stderr)
    return account.exit_status()


if __name__ == "__main__":
    sys.exit(main())
