#!/usr/bin/env python3
"""Reads a help file back: help_file.py HELP.chm FOLDER

Its pages, its first page, the numbers of its topics, its contents and its index are those of the
folder that it was made of.
"""
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

HELP, FOLDER = sys.argv[1], pathlib.Path(sys.argv[2])
NEWER_LAYOUT = '<meta http-equiv="X-UA-Compatible" content="IE=edge">\n'


def topics():
    """Number and page of each topic, in order."""
    lines = (FOLDER / "topics.txt").read_text().splitlines()
    return [(int(line.split()[0]), line.split()[1]) for line in lines if line[:1].isdigit()]


def text_at(strings, offset):
    return strings[offset : strings.index(b"\0", offset)].decode()


class HelpFile(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.unpacked = pathlib.Path(cls.scratch.name)
        subprocess.run(["extract_chmLib", HELP, cls.scratch.name], check=True, capture_output=True)

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    def entries(self, name):
        """Text and target of each entry of the contents or of the index."""
        return re.findall(
            r'name="Name" value="([^"]*)">(?:<param name="Local" value="([^"]*)">)?',
            (self.unpacked / name).read_text(),
        )

    def test_every_page_is_there_as_it_was_written(self):
        pages = sorted(page.name for page in FOLDER.glob("*.html"))
        self.assertEqual(pages, sorted(page.name for page in self.unpacked.glob("*.html")))
        self.assertGreater(len(pages), 15)
        for page in pages:
            inside = (self.unpacked / page).read_text()
            self.assertIn(NEWER_LAYOUT, inside)
            self.assertEqual((FOLDER / page).read_text(), inside.replace(NEWER_LAYOUT, ""))
        self.assertEqual(
            (FOLDER / "help.css").read_bytes(), (self.unpacked / "help.css").read_bytes()
        )

    def test_it_opens_at_the_first_topic_under_its_title(self):
        told = subprocess.run(
            ["chmls", "printsystem", HELP], check=True, capture_output=True, text=True
        ).stdout
        self.assertRegex(told, r"Default topic from \[options\] *:" + re.escape(topics()[0][1]))
        self.assertRegex(told, r"Title from \[options\] *:Orvan Diagnostic Tool")
        self.assertRegex(told, r"LCID from HHP file *: 1033")
        self.assertRegex(told, r"fullttext search is on *: 1")

    def test_each_number_leads_to_the_page_of_its_topic(self):
        numbers = (self.unpacked / "#IVB").read_bytes()
        strings = (self.unpacked / "#STRINGS").read_bytes()
        (size,) = struct.unpack_from("<I", numbers)
        self.assertEqual(len(numbers), size + 4)
        pairs = struct.iter_unpack("<II", numbers[4:])
        self.assertEqual(topics(), sorted((number, text_at(strings, at)) for number, at in pairs))

    def test_the_contents_lead_to_every_page(self):
        targets = [target for _, target in self.entries("contents.hhc") if target]
        self.assertEqual(sorted(page for _, page in topics()), sorted(targets))
        chapters = [text for text, target in self.entries("contents.hhc") if not target]
        self.assertEqual(
            re.findall(r"<h2>(.*?)</h2>", (FOLDER / "index.html").read_text()), chapters
        )

    def test_the_index_leads_to_titles_and_headings_in_order(self):
        entries = self.entries("index.hhk")
        names = [text for text, _ in entries]
        self.assertEqual(sorted(names, key=str.upper), names)
        headings = {target for _, target in entries}
        expected = {page for _, page in topics()}
        for _, page in topics():
            marks = re.findall(r'<h2 id="([^"]*)"', (FOLDER / page).read_text())
            expected |= {f"{page}#{mark}" for mark in marks}
        self.assertEqual(expected, headings)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
