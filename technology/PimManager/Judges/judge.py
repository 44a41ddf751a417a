#!/usr/bin/env python3
"""judge.py PIMVCARD JUDGES SAMPLE...: checks that other programs can read what pimvcard writes.

Converts each sample to each format. Our own reader then reads the result, and so do the judges: programs that read it
with the libraries of others. What ours finds in the sample must be what ours finds in the result, and that must be
what the judges find. Differences that belong to a reader are in known-differences.tsv. Prints every other one, and
fails then. JUDGES is the folder with the built judges and the installed ical.js.

  --all       the samples are all that there are, so every known difference must occur
  --examples  also prints one example of each known difference
"""

import argparse
import base64
import hashlib
import itertools
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import urllib.parse
from concurrent.futures import ThreadPoolExecutor

HERE = pathlib.Path(__file__).parent
FORMATS = ["2.1", "3.0", "4.0", "jcard"]
NAME_PARTS = ["family", "given", "additional", "prefix", "suffix"]
ADDRESS_PARTS = ["postOfficeBox", "extended", "street", "locality", "region", "postalCode", "country"]
OURS = "pimvcard"


# The compared data: cards as judges print them. Our values also contain data for the kinds of differences below, which
# is ignored in comparisons.

class Text(str):
    is_grouped = False


class Parts(dict):
    is_grouped = False


class Picture(dict):
    is_damaged = False
    is_marked = True  # as what it is: bytes by ENCODING, a URI by VALUE


class Facts:
    """The number of cards in a card, and its bytes if it was written."""

    def __init__(self, nested=0, text=b""):
        self.nested, self.text = nested, text


def marked(value, **marks):
    vars(value).update(marks)
    return value


def picture_of_bytes(data):
    return Picture(size=len(data), sha1=hashlib.sha1(data).hexdigest())


def our_picture(photo, properties, version):
    line = properties[photo["property"]] if "property" in photo else {}
    values = {one["name"]: one["values"] for one in photo.get("parameters", line.get("parameters", []))}
    is_uri = values.get("VALUE", [""])[0].lower() in ("uri", "url")
    if "data" in line:
        return marked(picture_of_bytes(base64.b64decode(line["data"])), is_marked=is_uri or version != "4.0")
    if photo.get("damaged"):
        return marked(Picture(damaged=True), is_damaged=True)
    return marked(Picture(address=photo.get("address", photo.get("text", ""))), is_marked=is_uri)


def our_pictures(contact):
    """The pictures of a contact. Those that are not binary do not name their line, but are in the same order."""
    properties = contact["properties"]
    others = [one for one in properties
              if one["name"] == "PHOTO" and "data" not in one and "fault" not in one and any(one["values"])]
    pictures = []
    for photo in contact.get("photos", []):
        if "property" not in photo and others:
            photo = {**photo, "parameters": others.pop(0).get("parameters", [])}
        pictures.append(our_picture(photo, properties, contact["version"]))
    return pictures


def nested_cards(properties):
    return sum(1 + nested_cards(one["card"]["properties"]) for one in properties if "card" in one)


def our_card(contact):
    """The members of a contact that pimvcard printed as JSON."""
    properties = contact["properties"]
    parts = contact.get("nameParts", {})
    grouped = [one for one in properties if "group" in one]
    grouped_texts = {one["values"][0].strip() for one in grouped if "values" in one}
    grouped_addresses = [plain_parts(one["parts"]) for one in grouped if "parts" in one]

    def texts(values):
        return [marked(Text(value), is_grouped=value in grouped_texts) for value in values]

    def address(one):
        plain_one = Parts({part: ",".join(one.get(part, [])) for part in ADDRESS_PARTS})
        return marked(plain_one, is_grouped=plain_one in grouped_addresses)

    def dates(kind):
        events = [event for event in contact.get("events", []) if event["kind"] == kind]
        return texts([event.get("date", event.get("text", "")) for event in events])

    return {"facts": Facts(nested_cards(properties)),
            "formattedNames": texts([one["values"][0] for one in properties if one["name"] == "FN"]),
            "name": marked(Parts({part: ",".join(parts.get(part, [])) for part in NAME_PARTS}),
                           is_grouped=any(one["name"] == "N" for one in grouped)),
            "numbers": texts([one["number"] for one in contact["numbers"]]),
            "mails": texts([one["mail"] for one in contact["mails"]]),
            "addresses": [address(one) for one in contact.get("addresses", [])],
            "notes": texts([one["text"] for one in contact.get("notes", [])]),
            "birthdays": dates("birth"),
            "anniversaries": dates("anniversary"),
            "photos": our_pictures(contact)}


# Normalises data that readers print in several forms: white space at the ends, the order of digits in dates, data:
# URIs.

def same_marks(new, old):
    return marked(new, **getattr(old, "__dict__", {}))


def plain_text(text):
    return same_marks(Text(text.strip()), text)


def plain_date(text):
    basic = re.fullmatch(r"(\d{4}|--)-?(\d\d)-?(\d\d)?(T.*)?", text)
    if not basic:
        return text
    year, month, day, time = basic.groups()
    time = re.sub(r"^T(\d\d):?(\d\d):?(\d\d)", r"T\1:\2:\3", time or "")
    return Text(year.replace("--", "-") + "-" + month + ("-" + day if day else "") + time)


def plain_parts(parts):
    return same_marks(Parts({name: text.strip() for name, text in parts.items()}), parts)


def plain_picture(picture):
    data = re.fullmatch(r"data:[^,]*;base64,(.*)", picture.get("address", ""), re.DOTALL | re.IGNORECASE)
    if data:
        return same_marks(picture_of_bytes(base64.b64decode(urllib.parse.unquote(data[1]))), picture)
    return same_marks(Picture(picture), picture)


def plain(card):
    filled = {member: [plain_text(text) for text in card[member] if text.strip()]
              for member in ("formattedNames", "numbers", "mails", "notes", "birthdays", "anniversaries")}
    addresses = [plain_parts(address) for address in card["addresses"]]
    pictures = [plain_picture(picture) for picture in card["photos"]]
    return {**card,
            **filled,
            "name": plain_parts(card["name"]),
            "addresses": [address for address in addresses if any(address.values())],
            "birthdays": [plain_date(text) for text in filled["birthdays"]],
            "anniversaries": [plain_date(text) for text in filled["anniversaries"]],
            "photos": [picture for picture in pictures if picture.get("size") != 0 and any(picture.values())]}


# Known differences. A kind is a function of our value and the reader's value that returns both without the difference.
# A difference is explained only if both are then equal, so that a difference of another kind is always noticed.

def each(change):
    """Applies a change to every text of a value."""
    def deep(value):
        if isinstance(value, str):
            return change(value)
        if isinstance(value, dict):
            return {name: deep(part) for name, part in value.items()}
        return [deep(part) for part in value] if isinstance(value, list) else value
    return deep


def ours_changed(change):
    return lambda ours, theirs, facts: (change(ours), theirs)


def theirs_changed(change):
    return lambda ours, theirs, facts: (ours, change(theirs))


def both_changed(change):
    return lambda ours, theirs, facts: (change(ours), change(theirs))


def accepted_if(condition):
    """Accepts the reader's value if the condition is true for our value, theirs and the facts."""
    return lambda ours, theirs, facts: (theirs, theirs) if condition(ours, theirs, facts) else (ours, theirs)


def with_read_damage(ours, theirs, facts):
    """A reader may find anything in damaged bytes, or nothing."""
    if len(ours) != len(theirs):
        return [picture for picture in ours if not picture.is_damaged], theirs
    return [other if mine.is_damaged else mine for mine, other in zip(ours, theirs)], theirs


def without_grouped(value):
    if isinstance(value, dict):
        return dict.fromkeys(value, "") if value.is_grouped else value
    return [one for one in value if not one.is_grouped]


def ending_at(delimiter):
    return lambda texts: [text for text in (one.split(delimiter)[0].rstrip() for one in texts) if text]


def is_cut_at_blanks(ours, theirs, facts):
    return has_line_of_blanks(facts) and len(ours) == len(theirs) and all(map(str.startswith, ours, theirs))


def has_line_of_blanks(facts):
    return re.search(rb"\n[ \t]+\r\n", facts.text) is not None


CONTROLS = str.maketrans("", "", "".join(map(chr, [*range(0x09), 0x0B, 0x0C, *range(0x0E, 0x20), 0x7F])))

KINDS = {
    # Data that a format cannot express, or that a standard requires.
    "a missing one is made": accepted_if(lambda ours, theirs, facts: not ours and len(theirs) == 1),
    "control characters are left out": ours_changed(each(lambda text: text.translate(CONTROLS).strip())),
    "other line breaks are line feeds": ours_changed(each(lambda text: re.sub("[\u0085\u2028\u2029]", "\n", text))),
    "damaged bytes are read in another way": with_read_damage,

    # Data that a reader does not find.
    "lines with a group are not found": ours_changed(without_grouped),
    "pictures need VALUE=uri": ours_changed(lambda pictures: [one for one in pictures if one.is_marked]),
    "only the first is found": ours_changed(lambda values: values[:1]),
    "only the last is found": ours_changed(lambda values: values[-1:]),
    "addresses of pictures are not found": ours_changed(lambda all: [one for one in all if "address" not in one]),
    "dates without a year are not found": ours_changed(lambda dates: [one for one in dates if one[0] != "-"]),
    "dates with a time are not found": ours_changed(lambda dates: [one for one in dates if "T" not in one]),
    "the property is unknown": ours_changed(lambda values: []),

    # Data that a reader changes.
    "an open year is 1604": ours_changed(each(lambda date: re.sub("^--", "1604-", date))),
    "an open year is no date": ours_changed(each(lambda date: re.sub("^--.*", "0000-00-00", date))),
    "the time is left out": ours_changed(each(lambda date: date.split("T")[0])),
    "a URI stays a URI": theirs_changed(each(lambda text: text.removeprefix("tel:"))),
    "backslashes before semicolons stay": ours_changed(each(lambda text: text.replace(";", "\\;"))),
    "escaped backslashes are left out": ours_changed(each(lambda text: text.replace("\\", ""))),
    "line breaks are CR LF": ours_changed(each(lambda text: text.replace("\n", "\r\n"))),
    "soft line breaks stay": theirs_changed(each(lambda text: re.sub(r"=(\r\n|$)", "", text))),
    "a text ends at a semicolon": ours_changed(ending_at(";")),
    "a text ends at a comma": ours_changed(ending_at(",")),
    "a text ends at a line of blanks": accepted_if(is_cut_at_blanks),
    "a backslash at the end becomes another text": ours_changed(each(lambda text: re.sub(r"\\$", r"\\eof", text))),
    "blanks of folds are left out": both_changed(each(lambda text: re.sub(r"[ \t]", "", text))),
    "a no-break space is a blank": ours_changed(each(lambda text: text.replace("\u00A0", " "))),
    "a byte order mark is left out": ours_changed(each(lambda text: text.removeprefix("\uFEFF"))),

    # Data that a reader cannot read.
    "a nested card is a card of its own": accepted_if(
        lambda ours, theirs, facts: facts.nested and theirs == f"{1 + facts.nested} cards are read"),
    "lines of a nested card are the card's": accepted_if(lambda ours, theirs, facts: facts.nested),
    "a line of blanks is an error": accepted_if(
        lambda ours, theirs, facts: has_line_of_blanks(facts) and "Failed to parse line" in theirs),
    "8BIT is an error": accepted_if(
        lambda ours, theirs, facts: b"ENCODING=8BIT" in facts.text and "'base64' codec failed" in theirs),
}


def load_known(path):
    """Reads the rows of known-differences.tsv: reader, formats, members, kind and reason."""
    rows = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        cells = line.split("\t")
        if len(cells) != 5 or cells[3] not in KINDS or not set(cells[1].split(",")) <= set(FORMATS):
            raise SystemExit(f"{path.name}:{number}: expected READER, FORMATS, MEMBERS, KIND and REASON between tabs")
        rows.append((cells[0], tuple(cells[1].split(",")), tuple(cells[2].split(",")), *cells[3:]))
    return rows


def explain(ours, theirs, facts, rows):
    """The fewest rows that explain why two values differ: empty if they do not, None if no rows do."""
    for count in range(len(rows) + 1):
        for chosen in itertools.combinations(rows, count):
            left, right = ours, theirs
            for row in chosen:
                left, right = KINDS[row[3]](left, right, facts)
            if left == right:
                return chosen
    return None


# Runs programs.

def convert(pimvcard, source, form):
    """Returns the output of pimvcard for a book. Damaged books are converted too; then pimvcard exits with 1."""
    run = subprocess.run([pimvcard, "convert", "--quiet", "--to", form, source], capture_output=True, check=False)
    if run.returncode not in (0, 1):
        raise SystemExit(f"judge: pimvcard could not convert {source} to {form}: {run.stderr.decode()}")
    return run.stdout


def read_ours(pimvcard, source):
    return [plain(our_card(json.loads(line))) for line in convert(pimvcard, source, "json-lines").splitlines()]


def read_written(pimvcard, source, cards):
    """The same for a written book whose cards are known."""
    read = read_ours(pimvcard, source)
    for card, text in zip(read, cards):
        card["facts"].text = text
    return read


def cut(text, form):
    """The cards of a written book."""
    if form == "jcard":
        book = json.loads(text)
        return [json.dumps(card).encode() for card in (book if not book or book[0] != "vcard" else [book])]
    cards, card, depth = [], [], 0
    for line in text.splitlines(keepends=True):
        card.append(line)
        depth += {b"BEGIN:VCARD\r\n": 1, b"END:VCARD\r\n": -1}.get(line.upper(), 0)
        if depth == 0:
            cards.append(b"".join(card))
            card = []
    return cards


def ask(command, blocks):
    """The answers of a judge to many blocks: for each, a list of cards or {"error": ...}."""
    stdin = b"".join(b"%d\n%s" % (len(block), block) for block in blocks)
    run = subprocess.run(command, input=stdin, capture_output=True, check=False)
    answers = [json.loads(line) for line in run.stdout.splitlines()]
    if run.returncode != 0 or len(answers) != len(blocks):
        raise SystemExit(f"judge: {command[-1]} ended at block {len(answers)} of {len(blocks)}: {run.stderr.decode()}")
    return answers


class Judge:
    """A program that reads with another library."""

    def __init__(self, name, command, formats, reads_books=True):
        self.name, self.command, self.formats, self.reads_books = name, command, formats, reads_books

    def read(self, books):
        """For each book, which is a text and its cards, a list with what is read of each card: a card or an error.

        A book that the judge cannot read as a whole is read card by card.
        """
        answers = ask(self.command, [text for text, _ in books]) if self.reads_books else [None] * len(books)
        read = [answer if self.is_whole(answer, len(cards)) else None for answer, (_, cards) in zip(answers, books)]
        left = [at for at, answer in enumerate(read) if answer is None]
        singles = iter(ask(self.command, [card for at in left for card in books[at][1]]))
        for at in left:
            read[at] = [self.only_card(next(singles)) for _ in books[at][1]]
        return [[plain(card) if "error" not in card else card for card in cards] for cards in read]

    @staticmethod
    def is_whole(answer, count):
        return isinstance(answer, list) and len(answer) == count

    @staticmethod
    def only_card(answer):
        if isinstance(answer, dict):
            return answer
        return answer[0] if len(answer) == 1 else {"error": f"{len(answer)} cards are read"}


def all_judges(folder):
    return [Judge("kcontacts", [folder / "kcontacts-judge"], ["2.1", "3.0", "4.0"]),
            Judge("ebook", [folder / "ebook-judge"], ["2.1", "3.0", "4.0"], reads_books=False),
            Judge("vobject", ["/usr/bin/python3", HERE / "vobject-judge.py"], ["2.1", "3.0"]),
            Judge("ical.js", ["node", folder / "ical-judge.mjs"], ["3.0", "4.0", "jcard"])]


# The comparison.

def differences(reader, form, ours, theirs, known):
    """For each member in which two cards differ: the member, both values and the rows that explain it, or None."""
    facts = ours["facts"]
    if "error" in theirs:
        ours, theirs = {"card": "is read"}, {"card": theirs["error"]}
    for member in ours.keys() & theirs.keys() - {"facts"}:
        rows = [row for row in known if row[0] == reader and form in row[1] and member in row[2]]
        why = explain(ours[member], theirs[member], facts, rows)
        if why != ():
            yield member, ours[member], theirs[member], why


class Verdict:
    """Collects known and unknown differences."""

    def __init__(self, known):
        self.known, self.examples, self.unknown, self.cards = known, {}, [], 0

    def compare(self, reader, form, sample, ours, theirs):
        if len(ours) != len(theirs):
            self.unknown.append((reader, form, sample, "cards", len(ours), len(theirs)))
            return
        for number, (left, right) in enumerate(zip(ours, theirs), 1):
            self.cards += 1
            for member, mine, other, why in differences(reader, form, left, right, self.known):
                place = f"{sample}, card {number}"
                if why is None:
                    self.unknown.append((reader, form, place, member, mine, other))
                for row in why or ():
                    self.examples.setdefault((row, form, member), (place, mine, other))

    def missing(self):
        """The known differences that did not occur, each with its format and member."""
        listed = [(row, form, member) for row in self.known for form in row[1] for member in row[2]]
        return [one for one in listed if one not in self.examples]


def judge_samples(pimvcard, judges, samples, known, formats=FORMATS):
    verdict = Verdict(known)
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(2) as pool:
        def prepare(job):
            number, (sample, form) = job
            text = convert(pimvcard, sample, form)
            written = pathlib.Path(folder, f"{number}.{form}")
            written.write_bytes(text)
            cards = cut(text, form)
            return text, cards, read_written(pimvcard, written, cards)

        found = dict(zip(samples, pool.map(lambda sample: read_ours(pimvcard, sample), samples)))
        for form in formats:
            written = list(pool.map(prepare, enumerate([(sample, form) for sample in samples])))
            for sample, (_, _, read) in zip(samples, written):
                verdict.compare(OURS, form, sample, found[sample], read)
            books = [(text, cards) for text, cards, _ in written]
            for judge in judges:
                if form in judge.formats:
                    for sample, (_, _, mine), theirs in zip(samples, written, judge.read(books)):
                        verdict.compare(judge.name, form, sample, mine, theirs)
    return verdict


def show(difference):
    reader, form, place, member, ours, theirs = difference
    print(f"{reader}, {form}: {place}: {member}\n  expected {ours!r:.600}\n  read     {theirs!r:.600}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("pimvcard", type=pathlib.Path)
    parser.add_argument("judges", type=pathlib.Path)
    parser.add_argument("samples", nargs="+")
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--examples", action="store_true")
    arguments = parser.parse_args()

    known = load_known(HERE / "known-differences.tsv")
    verdict = judge_samples(arguments.pimvcard, all_judges(arguments.judges), arguments.samples, known)
    if arguments.examples:
        for (row, form, member), example in verdict.examples.items():
            print(row[3], end=": ")
            show((row[0], form, example[0], member, *example[1:]))
    for difference in verdict.unknown:
        show(difference)
    missing = verdict.missing() if arguments.all else []
    for row, form, member in missing:
        print(f"{row[0]}, {form}: {member}: the known difference '{row[3]}' does not occur any more")
    print(f"judge: {verdict.cards} cards of {len(arguments.samples)} samples compared, {len(verdict.unknown)} unknown "
          f"differences, {len(verdict.examples)} known ones")
    return 1 if verdict.unknown or missing or verdict.cards == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
