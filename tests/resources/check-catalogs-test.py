#!/usr/bin/env python3
"""Plants one defect of each kind in a copy of the catalogs and expects scripts/check-catalogs to name it; takes each
catalog through the formats that translators use. $LCONVERT is Qt's converter."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "scripts"))
from catalog_rules import Checker  # noqa: E402

LINK = '<a href="https://help.kelvane.example/client">Learn more</a>'
FIELD = "This is a required field."
NO_FOLDER = 'The folder "%1" does not exist.'
OTHER_FOLDER = "This folder is already part of another backup task. Please choose another folder."

# The catalog, the kind of defect that is named, the English text, and what becomes of a part of its translation; where
# no part is given, of all of it.
TEXT_DEFECTS = [
    ("jpn", "placeholders", "Items %1 to %2 of %3", "%3", "%2"),
    ("ger", "tags", LINK, '">', 'x">'),
    ("ger", "tags", LINK, None, '</a>Mehr<a href="https://help.kelvane.example/client">'),
    ("ger", "product name", "Repair [ProductName]", "[ProductName]", "Tessaly"),
    ("ger", "blanks", "Folder path", None, "Ordner  und Pfad"), ("fre", "blanks", "Finish", None, "\u00a0Terminer"),
    ("ger", "line break", "Folder path", None, "Ordner\nPfad"), ("ger", "line break", "Finish", None, "\\nFertig"),
    ("ger", "dots", "Loading...", None, "Wird geladen"), ("ger", "dots", "Finish", None, "Fertig..."),
    ("ger", "full stop", FIELD, ".", ""), ("cht", "full stop", FIELD, "。", "."),
    ("ger", "length", "Finish", None, "Siebenunddreißig Zeichen sind zu viel"),
    ("jpn", "length", "Finish", None, "漢字十九文字" * 3 + "漢"),
    ("ger", "English", FIELD, None, FIELD), ("ger", "English", FIELD, None, "Dieses Feld ist the richtige."),
    ("ger", "characters", "Finish", None, "Fеrtig"), ("dan", "characters", "Finish", None, "Färdig"),
    ("tha", "characters", "Finish", None, "file"), ("cht", "characters", "Finish", None, "这"),
    ("ger", "unit", "Please enter a size of less than %1 MB.", "\u00a0", " "),
    ("ger", "style", "%1 days ago", None, "Vor %1\u00a0Tag(en)"),
    ("krn", "particle", NO_FOLDER, "이(가)", "이"), ("hun", "article", NO_FOLDER, "A(z)", "A"),
    ("ger", "term hub", "Hub overview", None, "Übersicht"),
    ("ger", "term link (this computer to the hub)", "Linking...", None, "Verlinkung..."),
    ("ger", "sentence", OTHER_FOLDER, "Bitte wählen", "Wählen"),
    ("ger", "same", "Find hubs on the local network", None, "Lokales Netzwerk nach Hubs durchsuchen"),
    ("enu", "source", "Finish", None, "Done"), ("ger", "unfinished", "Finish", None, ""),
]

# What is done to the first message and its context.
MESSAGE_DEFECTS = [
    ("unfinished", lambda message, _: message.find("translation").set("type", "unfinished")),
    ("comment", lambda message, _: setattr(message.find("extracomment"), "text", "Button.")),
    ("comment", lambda message, _: ElementTree.SubElement(message, "translatorcomment")),
    ("messages", lambda message, context: context.remove(message)),
    ("messages", lambda message, context: context.append(message)),
    ("messages", lambda message, _: setattr(message.find("source"), "text", "No row has this text")),
    ("context", lambda _, context: setattr(context.find("name"), "text", "other")),
]

# A file, a part of it and what becomes of the part, and the kind of defect, or None where nothing can be checked then.
FILE_DEFECTS = [
    ("catalogs/ger.ts", 'language="de_DE"', 'language="en_US"', "language"), ("catalogs/ger.ts", "</TS>", "", None),
    ("catalogs/glossary/ger.tsv", "English\t", "Term\t", None),
    ("catalogs/glossary/ger.tsv", "\nhub\t", "\nhubs\t", "glossary"),
    ("catalogs/glossary/ger.tsv", "\nhub\tHub", "\nhub\t ", "glossary"),
    ("catalogs/glossary/ger.tsv", "Laufwerk", "Datenträger", "two terms"),
    ("catalogs/exceptions.tsv", "a no-break space stands before a colon", "", None),
    ("catalogs/exceptions.tsv", "blanks\tfre", "blanks\tger", "exception"),
    ("str-table-rows.cpp", "//: Event", "//: Thing", None),
    ("str-table-rows.cpp", "QT_TRANSLATE_NOOP", "QT_TR_NOOP", None),
]


class CheckCatalogsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="check-catalogs-")
        self.addCleanup(folder.cleanup)
        self.resources = Path(folder.name) / "resources"
        shutil.copytree(PROJECT / "resources", self.resources)
        self.checker = Checker(self.resources)

    def check(self, *codes):
        """The exit code, the rows of the table, and the kinds of the defects."""
        command = [sys.executable, PROJECT / "scripts/check-catalogs", "--resources", self.resources, *codes]
        run = subprocess.run(command, capture_output=True, encoding="utf-8", check=False)
        table, _, defects = run.stdout.partition("\n\n")
        kinds = [line.split(": ")[2] for line in defects.splitlines()]
        self.assertEqual(run.returncode, 2 if run.stderr else 1 if kinds else 0, run.stderr)
        return run.returncode, table.splitlines()[1:], kinds

    def expect(self, kind, code, change):
        """A changed catalog has defects of this kind alone."""
        root = ElementTree.parse(self.resources / f"catalogs/{code}.ts").getroot()
        with self.subTest(code=code, kind=kind):
            change(root)
            self.assertEqual({found for _, found, _ in self.checker.defects(code, root)}, {kind})

    def test_a_row_for_each_catalog(self):
        (self.resources / "catalogs/zzz.ts").write_text("", "utf-8")
        status, table, kinds = self.check()
        self.assertEqual((status, kinds), (1, ["language"]))
        self.assertEqual([row.split()[0] for row in table] + ["zzz"],
                         sorted(path.stem for path in self.resources.glob("catalogs/*.ts")))

    def test_defects_of_texts(self):
        for code, kind, english, part, instead in TEXT_DEFECTS:
            def change(root, english=english, part=part, instead=instead):
                found = next(message for message in root.iter("message") if message.findtext("source") == english)
                translation = found.find("translation")
                self.assertIn(part or "", translation.text)
                translation.text = translation.text.replace(part or translation.text, instead)
            self.expect(kind, code, change)

    def test_defects_of_messages(self):
        for kind, action in MESSAGE_DEFECTS:
            self.expect(kind, "ger", lambda root, action=action: action(
                root.find("context/message"), root.find("context")))

    def test_defects_of_files(self):
        for name, part, instead, kind in FILE_DEFECTS:
            with self.subTest(name=name, part=part):
                path = self.resources / name
                good = path.read_text("utf-8")
                self.assertIn(part, good)
                path.write_text(good.replace(part, instead), "utf-8")
                status, _, kinds = self.check(*([] if kind == "exception" else ["ger"]))
                path.write_text(good, "utf-8")
                self.assertEqual(status, 1 if kind else 2)
                self.assertTrue(kind is None or kind in kinds, kinds)

    def test_formats_of_translators_lose_nothing(self):
        for catalog in sorted(self.resources.glob("catalogs/*.ts")):
            with self.subTest(catalog.name):
                good = catalog.read_text("utf-8")
                for before, after in ((".ts", ".xlf"), (".xlf", ".po"), (".po", ".ts")):
                    subprocess.run([os.environ["LCONVERT"], "-o", catalog.with_suffix(after),
                                    catalog.with_suffix(before)], check=True)
                self.assertEqual(catalog.read_text("utf-8"), good)


if __name__ == "__main__":
    unittest.main()
