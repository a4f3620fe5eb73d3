"""Plants one defect of each kind in a copy of the catalogs and expects scripts/check-catalogs to name it; takes each
catalog through the formats that translators use. $LCONVERT is Qt's converter."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from importlib.machinery import SourceFileLoader
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
check_catalogs = SourceFileLoader("check_catalogs", str(PROJECT / "scripts/check-catalogs")).load_module()

LINK = '<a href="https://help.kelvane.example/client">Learn more</a>'
FIELD = "This is a required field."
NO_FOLDER = 'The folder "%1" does not exist.'
OTHER_FOLDER = "This folder is already part of another backup task. Please choose another folder."

# The catalog, the kind of defect that is named, the English text, and what becomes of a part of its translation; where
# no part is given, of all of it.
TEXT_DEFECTS = [
    ("jpn", "placeholders", "Items %1 to %2 of %3", "%3", "%2"), ("ger", "tags", LINK, '">', 'x">'),
    ("ger", "tags", LINK, None, '</a>Mehr<a href="https://help.kelvane.example/client">'),
    ("ger", "product name", "Repair [ProductName]", "[ProductName]", "Tessaly"),
    ("ger", "blanks", "Folder path", None, "Ordner  und Pfad"), ("fre", "blanks", "Finish", None, "\u00a0Terminer"),
    ("ger", "line break", "Folder path", None, "Ordner\nPfad"), ("ger", "line break", "Finish", None, "\\nFertig"),
    ("ger", "dots", "Finish", None, "Fertig..."), ("cht", "full stop", FIELD, "。", "."),
    ("ger", "length", "Finish", None, "Siebenunddreißig Zeichen sind zu viel"),
    ("jpn", "length", "Finish", None, "漢字十九文字" * 3 + "漢"), ("enu", "source", "Finish", None, "Done"),
    ("ger", "English", FIELD, None, FIELD), ("ger", "English", FIELD, None, "Dieses Feld ist the richtige."),
    ("ger", "characters", "Finish", None, "Fеrtig"), ("cht", "characters", "Finish", None, "这"),
    ("ger", "unit", "Please enter a size of less than %1 MB.", "\u00a0", " "),
    ("ger", "style", "%1 days ago", None, "Vor %1\u00a0Tag(en)"), ("ger", "unfinished", "Finish", None, ""),
    ("ger", "term hub", "Hub overview", None, "Übersicht"),
    ("krn", "particle", NO_FOLDER, "이(가)", "이"), ("hun", "article", NO_FOLDER, "A(z)", "A"),
    ("ger", "term link (this computer to the hub)", "Linking...", None, "Verlinkung..."),
    ("ger", "sentence", OTHER_FOLDER, "Bitte wählen", "Wählen"),
    ("ger", "same", "Find hubs on the local network", None, "Lokales Netzwerk nach Hubs durchsuchen"),
]

# A file, a part of it and what becomes of the part, and the kinds of defect, or None where nothing can be checked then.
FILE_DEFECTS = [
    ("catalogs/ger.ts", 'language="de_DE"', 'language="en_US"', "language"),
    ("catalogs/ger.ts", "<name>global", "<name>other", "context"),
    ("catalogs/ger.ts", "</name>", "</name><message><source>x</source></message>", "messages"),
    ("catalogs/ger.ts", "<source>Finish</source>", "<source>x</source>", "messages"),
    ("catalogs/ger.ts", "<source>Finish</source>", "<source>Cancel</source>", "comment messages"),
    ("catalogs/ger.ts", "<translation>Gelöscht<", '<translation type="unfinished">Gelöscht<', "unfinished"),
    ("catalogs/ger.ts", "<translation>Gelöscht<", "<translatorcomment/><translation>Gelöscht<", "comment"),
    ("catalogs/ger.ts", "</TS>", "", None), ("catalogs/glossary/ger.tsv", "English\t", "Term\t", None),
    ("catalogs/glossary/ger.tsv", "\nhub\t", "\nhubs\t", "glossary"),
    ("catalogs/glossary/ger.tsv", "\nhub\tHub", "\nhub\t ", "glossary term hub"),
    ("catalogs/glossary/ger.tsv", "Laufwerk", "Datenträger", "term drive two terms"),
    ("catalogs/exceptions.tsv", "a no-break space stands before a colon", "", None),
    ("str-table-rows.cpp", "//: Event", "//: Thing", None),
    ("str-table-rows.cpp", "QT_TRANSLATE_NOOP", "QT_TR_NOOP", None),
]


class CheckCatalogsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="check-catalogs-")
        self.addCleanup(folder.cleanup)
        self.resources = Path(folder.name) / "resources"
        shutil.copytree(PROJECT / "resources", self.resources)

    def replace(self, name, part, instead):
        good = (self.resources / name).read_text("utf-8")
        self.assertIn(part, good)
        (self.resources / name).write_text(good.replace(part, instead), "utf-8")
        return good

    def test_how_the_script_ends(self):
        def run():
            command = [sys.executable, PROJECT / "scripts/check-catalogs", "--resources", self.resources]
            return subprocess.run(command, capture_output=True, encoding="utf-8", check=False)
        (self.resources / "catalogs/zzz.ts").write_text("", "utf-8")
        self.replace("catalogs/exceptions.tsv", "English\tplk", "English\tplk ger")
        self.assertRegex(run().stdout, "\nzzz: catalog: language: .*\nger: Folder: exception: ")
        self.assertEqual(run().returncode, 1)
        self.replace("catalogs/ger.ts", "</TS>", "")
        self.assertEqual(run().returncode, 2)

    def test_defects_of_texts(self):
        checker = check_catalogs.Checker(self.resources)
        for code, kind, english, part, instead in TEXT_DEFECTS:
            with self.subTest(code=code, kind=kind):
                root = check_catalogs.read_catalog(self.resources / f"catalogs/{code}.ts")
                message = next(one for one in root.iter("message") if one.findtext("source") == english)
                translation = message.find("translation")
                self.assertIn(part or "", translation.text)
                translation.text = translation.text.replace(part or translation.text, instead)
                self.assertEqual({found for _, found, _ in checker.defects(code, root)}, {kind})

    def test_defects_of_files(self):
        for name, part, instead, kinds in FILE_DEFECTS:
            with self.subTest(name=name, part=part, instead=instead):
                good = self.replace(name, part, instead)
                try:
                    root = check_catalogs.read_catalog(self.resources / "catalogs/ger.ts")
                    defects = check_catalogs.Checker(self.resources).defects("ger", root)
                    found = " ".join(sorted({kind for _, kind, _ in defects}))
                except check_catalogs.Unreadable:
                    found = None
                (self.resources / name).write_text(good, "utf-8")
                self.assertEqual(found, kinds)

    def test_formats_of_translators_lose_nothing(self):
        for catalog in sorted(self.resources.glob("catalogs/*.ts")):
            good = catalog.read_text("utf-8")
            for before, after in ((".ts", ".xlf"), (".xlf", ".po"), (".po", ".ts")):
                subprocess.run([os.environ["LCONVERT"], "-o", catalog.with_suffix(after), catalog.with_suffix(before)],
                               check=True)
            self.assertEqual(catalog.read_text("utf-8"), good, catalog.name)


if __name__ == "__main__":
    unittest.main()
