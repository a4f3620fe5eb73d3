"""What may be wrong with a catalog, for scripts/check-catalogs.

A rule for one text yields (kind of defect, what is wrong); one for a whole catalog or glossary puts the text or the
term before them.
"""

import functools
import itertools
import re
import unicodedata
from collections import Counter, defaultdict

import catalog_files as files

# The label of the start-up dialog is the same in every release, whatever the rules below say.
FIXED_TEXTS = {"%1 is ready.", "%1 is initializing..."}

# Stand in Latin letters in every language: products, file samples, keys, units and abbreviations.
PRODUCTS = ("Kelvane Quay Client", "Kelvane Quay Server", "Kelvane Quay", "My Quay", "Tessaly Server", "Tessaly",
            "Ferrylink", "Norvik", "Bureau", "Grida", "Folia", "Pictra", "Dropbox")
NAMES = (*PRODUCTS, "NTFS", "SSL", "IP", "ID", "OK", "MB", "Enter", "desktop.ini", "*.tmp")

# A word that no other language of the product has: its text was left in English, at least in part.
ENGLISH_WORDS = re.compile(r"\b(the|your|you|this|these|with|please|cannot|could|been|files|which)\b", re.I)

# What all languages share: digits, blanks, and ASCII punctuation but for straight quotes, which only some set.
COMMON = "\u00a0" r"0-9 !%&'()*+,\-./:;<>?=\[\]|"

# How wide a text may always be on a kind of control, in Latin letters; a wide Asian character counts for two. A text
# that is long in English may be GROWTH times as wide.
WIDTHS = {"Button": 36, "Menu item": 40, "Tab": 30, "Column head": 32, "Label": 40, "Choice": 60, "Check box": 60,
          "Heading": 56, "Status": 68, "Event": 40, "Tooltip": 90, "Hint": 40, "Link": 32, "Name": 20, "Day": 8,
          "Screen reader": 60, "Fragment": 40, "Message": 100}
GROWTH = 1.9

PLACEHOLDER = re.compile(r"%\d")
TAG = re.compile(r"<[/a-zA-Z][^>]*>")
CONTROL = re.compile(r"[\\\x00-\x1f\x7f-\x9f\u2028\u2029]")
PRODUCT_NAME = "[ProductName]"
SENTENCE_END = re.compile(r"(?<=[.?!])(?<!\.\.\.) (?=\S)|(?<=[。？！])(?=\S)")

UNITS = re.compile(r"(%\d) (?:MB|seconds|minutes|hours|days)\b")
AGES = ("%1 days ago", "%1 hours ago", "%1 minutes ago")
# Which form of these particles is right depends on the sound before; after a placeholder both are given, as in 을(를).
KOREAN_PARTICLE = re.compile(r"(?:%\d|\[ProductName\])[\"'’”]?(?:을|를|이|가|은|는|과|와|로|으로)(?![가-힣(])")
HUNGARIAN_ARTICLE = re.compile(r"\baz? „?(%\d)", re.I)


def without_codes(text):
    """What a person reads of a text."""
    return PLACEHOLDER.sub("", TAG.sub("", text)).replace(PRODUCT_NAME, "")


def is_sentence(english):
    return english.endswith((".", "?")) and not english.endswith("...")


def difference(english, translated):
    """'missing ..., extra ...' for two lists, empty where they hold the same."""
    if english == translated:
        return ""
    missing, extra = Counter(english) - Counter(translated), Counter(translated) - Counter(english)
    return ", ".join(f"{word} {' '.join(found.elements())}"
                     for word, found in (("missing", missing), ("extra", extra)) if found)


def codes_kept(_language, _text, english, translated):
    for kind, found in (("placeholders", PLACEHOLDER.findall), ("tags", TAG.findall),
                        ("product name", lambda text: [PRODUCT_NAME] * text.count(PRODUCT_NAME))):
        wrong = difference(found(english), found(translated))
        if wrong:
            yield kind, wrong
    if "<" in translated and [tag[1] for tag in TAG.findall(translated)] != [tag[1] for tag in TAG.findall(english)]:
        yield "tags", "opened and closed in another order"


def blanks(_language, _text, _english, translated):
    if translated != translated.strip():
        yield "blanks", "at the start or the end"
    if re.search(r"[ \u00a0]{2}", translated):
        yield "blanks", "two in a row"
    # The table turns backslash-n and backslash-t of a translation into control characters.
    if CONTROL.search(translated):
        yield "line break", "a control character or a backslash"


def end_of_text(language, _text, english, translated):
    if english.endswith("...") != translated.endswith("..."):
        yield "dots", "'...' at the end in one of the two alone"
    if language.stop and english.endswith(".") and is_sentence(english) and not translated.endswith(language.stop):
        yield "full stop", f"no '{language.stop}' at the end"


def width(text):
    return sum((unicodedata.category(sign) != "Mn") + (unicodedata.east_asian_width(sign) in "WF")
               for sign in without_codes(text))


def length(_language, text, english, translated):
    always, kind = min((WIDTHS[kind], kind) for kind in text.kinds)
    allowed = max(always, int(GROWTH * width(english)))
    if width(translated) > allowed:
        yield "length", f"{width(translated)} letters wide, {allowed} at most ({kind})"


@functools.lru_cache(maxsize=None)
def patterns(language):
    """Two expressions: the names that any text of the language may hold, and the characters that none may."""
    names = "|".join(re.escape(name) for name in (*NAMES, *language.words.split()))
    letters = language.letters + language.letters.upper()
    return (re.compile(f"(?<![a-zA-Z])(?:{names})(?![a-zA-Z])"), re.compile(f"[^{COMMON}{letters}{language.signs}]"))


def characters(language, _text, english, translated):
    names, foreign = patterns(language)
    plain = names.sub("", CONTROL.sub("", without_codes(translated)))
    strange = set(foreign.findall(plain))
    if language.charset and not plain.isascii():
        letters = set(plain) - {*language.signs, "\u00a0"}
        strange |= {letter for letter in letters if not letter.encode(language.charset, "ignore")}
    if strange:
        yield "characters", "not of this language: " + " ".join(f"{sign} U+{ord(sign):04X}" for sign in sorted(strange))
    word = ENGLISH_WORDS.search(plain)
    if translated == english:
        yield "English", "left as it is"
    elif word:
        yield "English", f"'{word[0]}'"


def particles(language, text, _english, translated):
    if language.code == "krn" and KOREAN_PARTICLE.search(translated):
        yield "particle", "in one form after a placeholder"
    if language.code == "hun":
        for placeholder in HUNGARIAN_ARTICLE.findall(translated):
            if f"{placeholder} is a product name" not in text.comment:
                yield "article", f"in one form before {placeholder}; a(z) fits all"


def unit_blanks(language, _text, english, translated):
    if language.spaced:
        for placeholder in UNITS.findall(english):
            if placeholder + " " in translated:
                yield "unit", f"an ordinary blank after {placeholder}; a no-break space keeps the unit beside it"


MESSAGE_RULES = (codes_kept, blanks, length, characters, end_of_text, particles, unit_blanks)


def message_defects(language, text, english, translated):
    for rule in MESSAGE_RULES:
        yield from rule(language, text, english, translated)


@functools.lru_cache(maxsize=None)
def terms_in(english, terms):
    """The terms that stand in an English text; where two overlap the longer one alone."""
    plain = without_codes(re.sub("|".join(PRODUCTS), "", english))
    found = [(match.span(), term.name) for term in terms for match in term.pattern.finditer(plain)]
    taken, names = set(), []
    for (start, end), name in sorted(found, key=lambda place: place[0][0] - place[0][1]):
        if taken.isdisjoint(range(start, end)):
            taken.update(range(start, end))
            names.append(name)
    return names


def term_defects(english, translated, terms, glossary):
    """A term's translation has to stand where the term does."""
    for name in terms_in(english, terms):
        if name in glossary and not glossary[name].pattern.search(files.folded(translated)):
            yield f"term {name}", f"none of {' | '.join(sorted(glossary[name].stems))}"


def catalog_defects(catalog, texts):
    """What the texts of a catalog have to agree on. Yields (English text, kind, what is wrong)."""
    yield from sentences(catalog)
    yield from shared_translations(catalog, texts)
    yield from ages(catalog)


def sentences(catalog):
    """An English sentence that stands in several texts has one translation in all."""
    translations = defaultdict(dict)
    for english, translated in catalog.items():
        ours, theirs = SENTENCE_END.split(english), SENTENCE_END.split(translated)
        if len(ours) == len(theirs):
            for sentence, translation in zip(ours, theirs):
                if is_sentence(sentence):
                    translations[sentence].setdefault(translation, english)
    for sentence, found in translations.items():
        for translation, english in list(found.items())[1:]:
            yield english, "sentence", f"'{sentence}' is '{translation}' here, '{next(iter(found))}' elsewhere"


def words_of(english):
    """The words of a label, whatever their number and order."""
    return {word.removesuffix("s") for word in re.findall(r"\w{3,}", without_codes(english).casefold())} - {"are"}


def shared_translations(catalog, texts):
    """Two labels about one thing in different words are two controls, and a user has to be able to tell them apart."""
    labels = defaultdict(list)
    for english, translated in catalog.items():
        if not is_sentence(english) and texts[english].kinds != ["Message"]:
            labels[files.folded(translated)].append(english)
    for found in labels.values():
        for other, english in itertools.combinations(found, 2):
            if words_of(english) != words_of(other) and words_of(english) & words_of(other):
                yield english, "same", f"the translation of '{other}' too"


def ages(catalog):
    """The texts for days, hours and minutes are of one style: the same but for the unit, all abbreviated or none."""
    texts = [catalog.get(age, "") for age in AGES]
    # The unit stands right behind the number, or the number behind the whole text.
    unit = re.compile(r"(?<=%1)([ \u00a0]?)([^\s\u00a0]+?)(\.?)(?=[\s\u00a0]|$)|^\S+(?=.*%1$)")
    if len({unit.sub(r"\1unit\3", text) for text in texts}) > 1 or "(" in "".join(texts):
        yield AGES[0], "style", "days, hours and minutes are not of one style, or have brackets"


def glossary_defects(glossary, terms):
    """Yields (term, kind, what is wrong). Two terms may share a stem only where one is part of the other."""
    names = [term.name for term in terms]
    if list(glossary) != names:
        yield "glossary", "glossary", f"not those of terms.tsv: {difference(names, list(glossary)) or 'another order'}"
    for name, translation in glossary.items():
        if not translation.word.strip():
            yield name, "glossary", "no translation"
    for (name, ours), (other, theirs) in itertools.combinations(glossary.items(), 2):
        parts = [term.split(" (")[0] for term in (name, other)]
        if ours.stems & theirs.stems - {""} and parts[0] not in parts[1] and parts[1] not in parts[0]:
            yield f"{name} / {other}", "two terms", f"one word: {' | '.join(sorted(ours.stems & theirs.stems))}"


class Checker:
    """Checks catalogs against the table of texts, the terms and the exceptions, which it reads once."""

    def __init__(self, resources):
        self.catalogs = resources / "catalogs"
        self.languages = files.read_languages(resources / "languages.tsv")
        self.texts = files.read_rows(resources / "str-table-rows.cpp", WIDTHS)
        self.terms = tuple(files.read_terms(self.catalogs / "glossary/terms.tsv"))
        self.exceptions = files.Exceptions(self.catalogs / "exceptions.tsv")

    def structure(self, language, root):
        """Yields the defects of the file itself: (text or part, kind, what is wrong)."""
        if root.tag != "TS" or root.get("language") != language.locale:
            yield "catalog", "language", f"'{root.get('language')}' instead of '{language.locale}'"
        contexts = [context.findtext("name") for context in root.findall("context")]
        if contexts != [files.CONTEXT]:
            yield "catalog", "context", f"{contexts} instead of '{files.CONTEXT}'"
        messages = root.findall("context/message")
        seen = Counter(message.findtext("source") or "" for message in messages)
        yield from ((english, "messages", "missing") for english in self.texts if english not in seen)
        yield from ((english, "messages", f"{count} times") for english, count in seen.items() if count > 1)
        for message in messages:
            english = message.findtext("source") or ""
            if english not in self.texts:
                yield english, "messages", "not in the table"
                continue
            for tag in ("comment", "translatorcomment"):
                if message.find(tag) is not None:
                    yield english, "comment", tag
            if (message.findtext("extracomment") or "") != self.texts[english].comment:
                yield english, "comment", "not the table's; scripts/update-catalogs brings it in"
            translation = message.find("translation")
            if translation is None or translation.get("type") or not translation.text or message.get("numerus"):
                yield english, "unfinished", "no translation"

    def language_defects(self, language, root):
        """Yields the defects of a catalog and its glossary: (text or part, kind, what is wrong)."""
        yield from self.structure(language, root)
        pairs = [(message.findtext("source"), message.findtext("translation")) for message in root.iter("message")]
        catalog = {english: translated for english, translated in pairs if translated and english in self.texts}
        if language.code == "enu":
            yield from ((english, "source", f"differs from the table: {translated}")
                        for english, translated in catalog.items() if translated != english)
            return
        glossary = files.read_glossary(self.catalogs / "glossary" / f"{language.code}.tsv")
        yield from glossary_defects(glossary, self.terms)
        for english, translated in catalog.items():
            if english not in FIXED_TEXTS:
                for kind, wrong in (*message_defects(language, self.texts[english], english, translated),
                                    *term_defects(english, translated, self.terms, glossary)):
                    yield english, kind, f"{wrong}: {english} -> {translated}"
        for english, kind, wrong in catalog_defects(catalog, self.texts):
            yield english, kind, f"{wrong}: {english} -> {catalog[english]}"

    def defects(self, code, root):
        """What is wrong with a catalog and its glossary but for the exceptions, as language_defects yields it."""
        found = self.language_defects(self.languages[code], root)
        return [defect for defect in found if not self.exceptions.has(defect[1], code, defect[0])]
