#!/usr/bin/env python3
"""judge_test.py PIMVCARD JUDGES: checks that judge.py finds differences. The words are those of judge.py."""

import pathlib
import sys
import tempfile
import unittest

import judge

PIMVCARD, JUDGES = (pathlib.Path(word).absolute() for word in sys.argv[1:3])
KNOWN = judge.load_known(judge.HERE / "known-differences.tsv")
CARDS = """BEGIN:VCARD\r
VERSION:3.0\r
N:Fenwick;Ada;;;\r
FN:Ada Fenwick\r
TEL;TYPE=HOME:+1-555-0101\r
EMAIL:ada@example.org\r
ADR:;;1 Mill Lane;Thornvale;;X1 4PL;Corvalia\r
NOTE:one\\ntwo\r
BDAY:1984-02-29\r
PHOTO;ENCODING=b;TYPE=GIF:R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7\r
END:VCARD\r
"""


def readers_of_fault(edit):
    """Returns the readers that find a fault in output of pimvcard that sed has edited."""
    with tempfile.TemporaryDirectory() as folder:
        sample = pathlib.Path(folder, "sample.vcf")
        sample.write_text(CARDS, newline="")
        program = pathlib.Path(folder, "pimvcard")
        program.write_text(f"#!/bin/sh\ncase $* in *json-lines*) exec {PIMVCARD} \"$@\" ;; esac\n"
                           f"{PIMVCARD} \"$@\" | sed '{edit}'\n")
        program.chmod(0o755)
        verdict = judge.judge_samples(program, judge.all_judges(JUDGES), [str(sample)], KNOWN, ["3.0"])
        return {difference[0] for difference in verdict.unknown}


class PlantedFaultTest(unittest.TestCase):
    """Faults in the output are found by the expected readers."""

    def test_without_a_fault_all_agree(self):
        self.assertEqual(readers_of_fault(""), set())

    def test_other_values_are_found_by_our_own_reader(self):
        for edit in ("s/555-0101/555-0102/", "s/Fenwick;Ada/Ada;Fenwick/", "s/ada@/eda@/", "s/Thornvale/Thorn/",
                     "s/one/eno/", "s/29/28/", "s/R0lGODlhAQAB/R0lGODlhAQAC/"):
            with self.subTest(edit):
                self.assertIn("pimvcard", readers_of_fault(edit))

    def test_what_our_own_reader_mends_is_found_by_the_others(self):
        rows = [("s/^TEL;/TEL ;/", {"kcontacts", "ebook", "vobject", "ical.js"}),
                ("s/ENCODING=b;//", {"kcontacts", "ebook", "vobject"}),
                ("s/^FN:/FN;:/", {"ical.js"})]
        for edit, readers in rows:
            with self.subTest(edit):
                self.assertEqual(readers_of_fault(edit), readers)


class ExplanationTest(unittest.TestCase):
    """A known difference explains only itself."""

    def explained(self, member, ours, theirs, reader="kcontacts", form="3.0"):
        rows = [row for row in KNOWN if row[0] == reader and form in row[1] and member in row[2]]
        return judge.explain(ours, theirs, judge.Facts(), rows)

    def test_equal_values_need_no_explanation(self):
        self.assertEqual(self.explained("notes", ["a"], ["a"]), ())

    def test_known_differences_are_explained(self):
        self.assertEqual([row[3] for row in self.explained("notes", ["a", "b"], ["b"])], ["only the last is found"])

    def test_several_at_once_are_explained(self):
        self.assertEqual(len(self.explained("notes", ["a", "b;c"], ["b\\;c"])), 2)

    def test_other_differences_are_not(self):
        for ours, theirs in ((["a", "b"], ["a"]), (["a", "b"], ["B"]), (["a;b"], ["a:b"]), (["a"], []), ([], ["a"])):
            with self.subTest(ours=ours, theirs=theirs):
                self.assertIsNone(self.explained("notes", ours, theirs))

    def test_those_of_another_reader_are_not(self):
        self.assertIsNone(self.explained("notes", ["a", "b"], ["b"], "vobject"))

    def test_those_of_another_format_are_not(self):
        self.assertIsNone(self.explained("numbers", ["1"], ["tel:1"], "ical.js", "3.0"))
        self.assertIsNotNone(self.explained("numbers", ["1"], ["tel:1"], "ical.js", "4.0"))


class VerdictTest(unittest.TestCase):
    @staticmethod
    def cards(note):
        return [judge.plain({"facts": judge.Facts(), "formattedNames": [], "name": {}, "numbers": [], "mails": [],
                             "addresses": [], "notes": [note], "birthdays": [], "anniversaries": [], "photos": []})]

    def test_a_known_difference_that_does_not_occur_is_missing(self):
        row = ("ebook", ("3.0", "4.0"), ("notes",), "line breaks are CR LF", "")
        verdict = judge.Verdict([row])
        verdict.compare("ebook", "3.0", "a.vcf", self.cards("a\nb"), self.cards("a\r\nb"))
        self.assertEqual(verdict.unknown, [])
        self.assertEqual(verdict.missing(), [(row, "4.0", "notes")])

    def test_another_number_of_cards_is_a_difference(self):
        verdict = judge.Verdict(KNOWN)
        verdict.compare("ebook", "3.0", "a.vcf", self.cards("a"), [])
        self.assertEqual(len(verdict.unknown), 1)


class CutTest(unittest.TestCase):
    def test_cards_in_cards_stay_in_them(self):
        card = b"BEGIN:VCARD\r\nAGENT:\r\nBEGIN:VCARD\r\nEND:VCARD\r\nEND:VCARD\r\n"
        self.assertEqual(judge.cut(card + card, "2.1"), [card, card])

    def test_one_jcard_is_no_list_of_cards(self):
        self.assertEqual(judge.cut(b'["vcard",[]]', "jcard"), [b'["vcard", []]'])
        self.assertEqual(judge.cut(b'[["vcard",[]],["vcard",[]]]', "jcard"), [b'["vcard", []]'] * 2)
        self.assertEqual(judge.cut(b"[]", "jcard"), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
