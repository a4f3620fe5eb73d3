#!/usr/bin/env python3
"""Plants one defect of each kind in a copy of the catalogs and expects scripts/check-catalogs to name it."""

import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
LONG_ENOUGH = 40


def source(message):
    return message.findtext("source")


def edit(change, wanted=lambda text: True):
    """Changes the first translation whose English is wanted."""
    def plant(root):
        message = next(message for message in root.iter("message") if wanted(source(message)))
        translation = message.find("translation")
        translation.text = change(translation.text)
    return plant


def on_first(action):
    """Does something to the first message; action takes it and the context."""
    def plant(root):
        context = root.find("context")
        action(context.find("message"), context)
    return plant


def copy_source(root):
    message = next(message for message in root.iter("message") if len(source(message)) > LONG_ENOUGH)
    message.find("translation").text = source(message)


def add_unknown(_, context):
    message = ElementTree.SubElement(context, "message")
    ElementTree.SubElement(message, "source").text = "No row has this text"
    ElementTree.SubElement(message, "translation").text = "Diesen Text hat keine Zeile"


def sentence(text):
    return text.endswith(".") and not text.endswith("...") and len(text) > LONG_ENOUGH


def plain_sentence(text):
    return sentence(text) and "%" not in text and "<" not in text and "[" not in text


# The catalog, the kind of defect that is named, and how it gets there.
CATALOG_DEFECTS = [
    ("ger", "placeholders", edit(lambda text: text.replace("%1", "%4"),
                                 lambda text: "%1" in text and "%4" not in text)),
    ("jpn", "placeholders", edit(lambda text: text.replace("%3", "%2"), lambda text: "%3" in text)),
    ("ger", "tags", edit(lambda text: text.replace('">', 'x">'), lambda text: "<a href" in text)),
    ("ger", "tags", edit(lambda text: "</a>" + text.replace("</a>", ""), lambda text: "<a href" in text)),
    ("ger", "product name", edit(lambda text: text.replace("[ProductName]", "Tessaly"),
                                 lambda text: "[ProductName]" in text)),
    ("ger", "blanks", edit(lambda text: text.replace(" ", "  ", 1), plain_sentence)),
    ("fre", "blanks", edit(lambda text: "\u00a0" + text, plain_sentence)),
    ("ger", "line break", edit(lambda text: text.replace(" ", "\n", 1), plain_sentence)),
    ("ger", "line break", edit(lambda text: text.replace(" ", " \\n", 1), plain_sentence)),
    ("ger", "dots", edit(lambda text: text.rstrip(". "), lambda text: text == "Loading...")),
    ("ger", "dots", edit(lambda text: text + "..", plain_sentence)),
    ("ger", "full stop", edit(lambda text: text[:-1], plain_sentence)),
    ("cht", "full stop", edit(lambda text: text[:-1] + ".", plain_sentence)),
    ("ger", "length", edit(lambda text: f"{text} {text} {text}", plain_sentence)),
    ("ger", "length", edit(lambda text: "Zweiundzwanzig Zeichen", lambda text: text == "Finish")),
    ("ger", "English", copy_source),
    ("ger", "English", edit(lambda text: text[:-1] + " the.", plain_sentence)),
    ("ger", "characters", edit(lambda text: text.replace("e", "е", 1), plain_sentence)),
    ("dan", "characters", edit(lambda text: text.replace(" ", " ä ", 1), plain_sentence)),
    ("tha", "characters", edit(lambda text: "file " + text, plain_sentence)),
    ("cht", "characters", edit(lambda text: "这" + text, plain_sentence)),
    ("enu", "source", edit(lambda text: text[:-1] + ", too.", plain_sentence)),
    ("ger", "unfinished", on_first(lambda message, _: message.find("translation").set("type", "unfinished"))),
    ("ger", "unfinished", edit(lambda text: "")),
    ("ger", "comment", on_first(lambda message, _: setattr(message.find("extracomment"), "text", "Button."))),
    ("ger", "comment", on_first(lambda message, _: ElementTree.SubElement(message, "translatorcomment"))),
    ("ger", "messages", on_first(lambda message, context: context.remove(message))),
    ("ger", "messages", on_first(lambda message, context: context.append(message))),
    ("ger", "messages", on_first(add_unknown)),
    ("ger", "context", on_first(lambda _, context: setattr(context.find("name"), "text", "other"))),
    ("ger", "language", lambda root: root.set("language", "en_US")),
]

GLOSSARY_DEFECTS = {
    "no file": lambda path: path.unlink(),
    "header": lambda path: path.write_text(path.read_text("utf-8").replace("English", "Term", 1), "utf-8"),
    "a term less": lambda path: path.write_text("".join(path.read_text("utf-8").splitlines(True)[:-1]), "utf-8"),
    "a term more": lambda path: path.write_text(path.read_text("utf-8").rstrip("\n") + "\nterm\t\t\t\n", "utf-8"),
    "a field less": lambda path: path.write_text(path.read_text("utf-8").replace("\t\n", "\n", 1), "utf-8"),
}


class CheckCatalogsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="check-catalogs-")
        self.addCleanup(folder.cleanup)
        self.resources = Path(folder.name)
        self.catalogs = self.resources / "catalogs"
        shutil.copytree(PROJECT / "resources/catalogs", self.catalogs)
        for name in ("languages.tsv", "str-table-rows.cpp"):
            shutil.copy(PROJECT / "resources" / name, self.resources)

    def check(self, *codes):
        """The exit code, the rows of the table, and the lines of the defects."""
        command = [sys.executable, PROJECT / "scripts/check-catalogs", "--resources", self.resources, *codes]
        run = subprocess.run(command, capture_output=True, encoding="utf-8", check=False)
        table, _, defects = run.stdout.partition("\n\n")
        return run.returncode, table.splitlines()[1:], defects.splitlines()

    def planted(self, code, before):
        """What the check says of a catalog beyond what it said before, as a set of kinds."""
        status, table, defects = self.check(code)
        self.assertEqual(status, 1 if defects else 0)
        self.assertEqual(table[0].split()[-1], str(len(defects)))
        return {line.split(": ")[2] for line in defects if line not in before}

    def test_a_row_for_each_catalog(self):
        status, table, _ = self.check()
        self.assertIn(status, (0, 1))
        self.assertEqual([row.split()[0] for row in table],
                         sorted(path.stem for path in self.catalogs.glob("*.ts")))
        self.assertEqual(self.check("enu"), (0, [row for row in table if row.startswith("enu")], []))

    def test_defects_of_catalogs(self):
        before = {code: self.check(code)[2] for code in sorted({code for code, _, _ in CATALOG_DEFECTS})}
        for code, kind, plant in CATALOG_DEFECTS:
            with self.subTest(code=code, kind=kind):
                path = self.catalogs / f"{code}.ts"
                good = path.read_bytes()
                tree = ElementTree.parse(path)
                plant(tree.getroot())
                tree.write(path, encoding="utf-8")
                found = self.planted(code, before[code])
                path.write_bytes(good)
                self.assertEqual(found, {kind})

    def test_defects_of_glossaries(self):
        before = self.check("ger")[2]
        path = self.catalogs / "glossary/ger.tsv"
        good = path.read_bytes()
        for name, plant in GLOSSARY_DEFECTS.items():
            with self.subTest(name):
                plant(path)
                found = self.planted("ger", before)
                path.write_bytes(good)
                self.assertEqual(found, {"glossary"})

    def test_what_cannot_be_read(self):
        catalog = self.catalogs / "ger.ts"
        catalog.write_bytes(catalog.read_bytes()[:1000])
        self.assertEqual(self.check("ger")[0], 2)
        catalog.unlink()
        self.assertEqual(self.check("ger")[0], 2)
        self.assertEqual(self.check("enu")[0], 0)
        (self.resources / "str-table-rows.cpp").write_text("// no rows\n", "utf-8")
        self.assertEqual(self.check("enu")[0], 2)


if __name__ == "__main__":
    unittest.main()
