"""Reads the table of texts and what stands in resources/catalogs, for scripts/check-catalogs."""

import re
import xml.etree.ElementTree as ElementTree
from collections import namedtuple

CONTEXT = "global"

# locale: as the catalog names it; letters: those of the script, as part of a character class, lower case alone where it
# has two; signs: quotes, dashes and punctuation; stop: how a sentence ends, empty in Thai; charset: an encoding whose
# letters are the language's own (it tells simplified from traditional characters, and both from Japanese ones), or
# empty; words: words in Latin letters that a language of another script writes so; spaced: "yes" where a blank stands
# between a number and its unit.
Language = namedtuple("Language", "code locale name letters signs stop charset words spaced")

# name: the number and key of the text's first row; comment: what translators read; kinds: the kinds of control on which
# the text stands, by that comment; a message where there is none.
Text = namedtuple("Text", "name comment kinds")

# pattern: finds the term in an English text.
Term = namedtuple("Term", "name pattern")

# A term's translation, and an expression that finds it in a text in any of its forms.
Translation = namedtuple("Translation", "word stems pattern")

# One line of a comment for translators, or one row.
ROW = re.compile(r'//: (.*)\n|\{\s*"(\w+)",\s*QT_TRANSLATE_NOOP\(\s*"' + CONTEXT +
                 r'",\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\)\s*\}')
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
ESCAPES = {"n": "\n", "t": "\t", "r": "\r"}


class Unreadable(Exception):
    """A file that the check needs is missing or damaged."""


def read_text(path):
    try:
        return path.read_text(encoding="utf-8")
    except (OSError, UnicodeDecodeError) as error:
        raise Unreadable(f"{path}: {error}") from error


def read_table(path, *header):
    """The lines below the header as lists of fields."""
    lines = [line.split("\t") for line in read_text(path).splitlines()]
    if lines[:1] != [list(header)] or any(len(line) != len(header) for line in lines):
        raise Unreadable(f"{path}: not a table of {', '.join(header)}")
    return lines[1:]


def read_languages(path):
    """Code -> Language."""
    return {fields[0]: Language(*fields) for fields in read_table(path, *Language._fields)}


def read_rows(path, kinds_of_control):
    """The different texts of the table in order, each with its Text."""
    texts = {}
    kind = f"(?:{'|'.join(kinds_of_control)})"
    first_words = re.compile(f"{kind}(?:/{kind})*(?=[ ,:])")
    number, comment = 0, []
    for line, key, literals in ROW.findall(read_text(path)):
        if line:
            comment.append(line)
            continue
        english = "".join(re.sub(r"\\(.)", lambda escape: ESCAPES.get(escape[1], escape[1]), part)
                          for part in LITERAL.findall(literals))
        kinds = first_words.match(" ".join(comment))
        if comment and (english in texts or not kinds):
            raise Unreadable(f"{path}: row {number}: the comment names no kind, or is not at the text's first row")
        texts.setdefault(english, Text(f"{number} {key}", " ".join(comment),
                                       kinds[0].split("/") if kinds else ["Message"]))
        number, comment = number + 1, []
    if not texts:
        raise Unreadable(f"{path}: no texts found")
    return texts


def read_catalog(path):
    try:
        return ElementTree.parse(path).getroot()
    except (OSError, ElementTree.ParseError) as error:
        raise Unreadable(f"{path}: {error}") from error


def read_terms(path):
    """The terms of all glossaries. Where the table has no expression the term itself is one, and its plural."""
    return [Term(name, re.compile(rf"(?<!\w)(?:{words or name.split(' (')[0] + 's?'})(?!\w)", re.I))
            for name, words, _ in read_table(path, "Term", "In texts", "Meaning")]


def folded(text):
    """Letter case gone, also Turkish's."""
    return text.casefold().replace("i\u0307", "i").replace("ı", "i")


def read_glossary(path):
    """English term -> Translation, in the order of the file."""
    glossary = {}
    for term, word, stems, _ in read_table(path, "English", "Translation", "Stems", "Note"):
        stems = {folded(stem) for stem in (stems or word).split("|")}
        expression = "|".join(".*".join(map(re.escape, stem.split("*"))) for stem in stems)
        glossary[term] = Translation(word, stems, re.compile(expression))
    return glossary


class Exceptions:
    """The texts in which a rule is right not to hold. Remembers what was asked for, so that none outlives its text."""

    def __init__(self, path):
        self.entries = {}
        for rule, codes, english, reason in read_table(path, "Rule", "Languages", "English", "Reason"):
            if not reason:
                raise Unreadable(f"{path}: no reason: {rule}: {english}")
            self.entries.update({(rule, code, english): False for code in codes.split()})

    def has(self, rule, code, english):
        """Whether the rule need not hold for the text in this language."""
        found = [key for key in ((rule, code, english), (rule, "*", english)) if key in self.entries]
        self.entries.update(dict.fromkeys(found, True))
        return bool(found)

    def unused(self):
        return [key for key, used in self.entries.items() if not used]
