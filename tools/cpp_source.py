"""Reads a C++ source as far as texts and names go: its tokens, the texts that it puts together, its definitions.

A text that the program completes at run time ("The file \"" + path + L"\" ...", or "{0}" in a format) has HOLE where the
unknown part is.
"""
import bisect
import functools
import pathlib
import re
from dataclasses import dataclass

HOLE = "\0"

TOKEN = re.compile(
    r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:[^\n\\]|\\.)*)
  | (?P<text>(?:u8|[uUL])?(?:R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:[^"\\\n]|\\.)*"))
  | (?P<sign>[uUL]?'(?:[^'\\\n]|\\.)+')
  | (?P<number>\d(?:[\w.]|'(?=\w))*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<mark_sign>::|<<|->|\S)
    """,
    re.X | re.S | re.M)

ESCAPE = re.compile(r"\\(?:u([0-9A-Fa-f]{4})|U([0-9A-Fa-f]{8})|x([0-9A-Fa-f]+)|([0-7]{1,3})|(.))", re.S)
SIMPLE_ESCAPES = {"n": "\n", "r": "\r", "t": "\t"}


def unescaped(match):
    for group, base in ((1, 16), (2, 16), (3, 16), (4, 8)):
        if match.group(group):
            return chr(int(match.group(group), base))
    return SIMPLE_ESCAPES.get(match.group(5), match.group(5))


@dataclass
class Token:
    kind: str
    value: str
    line: int
    wide: bool = False


@dataclass(eq=False)
class Definition:
    """A function, constant, enumerator, type alias or class of a source."""
    file: pathlib.Path
    tokens: list

    @functools.cached_property
    def words(self):
        return {token.value for token in self.tokens if token.kind == "word"}

    @functools.cached_property
    def numbers(self):
        return {token.value for token in self.tokens if token.kind == "number"}

    @functools.cached_property
    def texts(self):
        return {text for text, _ in joined_texts(self.tokens)}

    @functools.cached_property
    def measures(self):
        """Texts with the next number in the same list, as in {L"Property", 150} and {L"Property", LVCFMT_LEFT, 150}."""
        found = set()
        for at, token in enumerate(self.tokens):
            after = at + 1
            while token.kind == "text" and after + 1 < len(self.tokens) and self.tokens[after].value == ",":
                if self.tokens[after + 1].kind == "number":
                    found.add((token.value, self.tokens[after + 1].value))
                    break
                after += 2
        return found


def joined_texts(tokens):
    """(text, its first token) for each text of these tokens, with what is added to it. One that a check merely explains
    itself with (after "<<") is none."""
    pairs = partners(tokens)
    taken = set()
    for at, token in enumerate(tokens):
        if token.kind != "text" or at in taken:
            continue
        if at and tokens[at - 1].value == "<<":
            continue
        text = token.value
        if at and tokens[at - 1].value == "+":
            text = HOLE + text
        after = at + 1
        # A conversion, as in String(L"...") + path.
        if 1 < at and after < len(tokens) and tokens[at - 1].value == "(" and tokens[after].value == ")" and (
                tokens[at - 2].kind == "word"):
            after += 1
        while after < len(tokens) and tokens[after].value == "+":
            after += 1
            if tokens[after].kind == "text":
                taken.add(after)
                text += tokens[after].value
                after += 1
                continue
            text += HOLE
            while after < len(tokens) and (tokens[after].kind in ("word", "number", "sign") or
                                           tokens[after].value in ("::", ".", "->", "(", "[", "{", "*", "&")):
                after = pairs.get(after, after) + 1
        yield text, token


def partners(tokens):
    """The index of the closing bracket for that of each opening one."""
    result, opened = {}, []
    for at, token in enumerate(tokens):
        if token.kind != "mark":
            continue
        if token.value in "([{":
            opened.append(at)
        elif token.value in ")]}" and opened:
            result[opened.pop()] = at
    return result


class Source:
    def __init__(self, path):
        self.path = path
        self.tokens, self.comments, self.includes = [], [], []
        self._read(path.read_text(encoding="utf-8"))

    def _read(self, content):
        starts = [match.start() for match in re.finditer("^", content, re.M)]
        for match in TOKEN.finditer(content):
            value = match.group()
            line = bisect.bisect_right(starts, match.start())
            if match.lastgroup == "comment":
                self._add_comment(value, line)
            elif match.lastgroup == "directive":
                include = re.match(r'\s*#\s*include\s+"([^"]+)"', value)
                if include:
                    self.includes.append(include.group(1))
            elif match.group("text"):
                prefix, _, rest = value.partition('"')
                text = re.match(r"[^(]*\((.*)\)[^)]*$", rest, re.S).group(1) if prefix.endswith("R") else ESCAPE.sub(
                    unescaped, rest[:-1])
                if self.tokens and self.tokens[-1].kind == "text":
                    self.tokens[-1].value += text
                else:
                    self.tokens.append(Token("text", text, line, prefix.startswith("L")))
            else:
                kind = "mark" if match.lastgroup == "mark_sign" else match.lastgroup
                self.tokens.append(Token(kind, value, line))

    def _add_comment(self, value, line):
        """Comments as (text, line after the last), lines that follow each other in one."""
        text = re.sub(r"\s+", " ", re.sub(r"^\s*//|^/\*|\*/$", "", value)).strip()
        end = line + value.count("\n") + 1
        if value.startswith("//") and self.comments and self.comments[-1][1] == line:
            self.comments[-1] = (f"{self.comments[-1][0]} {text}", end)
        else:
            self.comments.append((text, end))

    @functools.cached_property
    def definitions(self):
        """(name, Definition) for each; the set-up of a test class goes by the name of the class."""
        found = []
        self._define(0, len(self.tokens), None, partners(self.tokens), found)
        return found

    def _define(self, at, end, owner, pairs, found):
        start = at
        while at < end:
            value = self.tokens[at].value if self.tokens[at].kind == "mark" else ""
            if value == ";":
                self._add(start, at, owner, found)
                at += 1
                start = at
            elif value == "{":
                close = pairs[at]
                head = self._head(start, at)
                words = [token.value for token in head if token.kind == "word"]
                following = self.tokens[close + 1].value if close + 1 < end else ""
                if "namespace" in words or words == ["extern"]:
                    self._define(at + 1, close, None, pairs, found)
                    at = start = close + 1
                elif "enum" in words:
                    members = self.tokens[at + 1:close]
                    found += [(token.value, Definition(self.path, members[number:number + 3]))
                              for number, token in enumerate(members) if token.kind == "word"]
                    at = start = close + 1
                elif words and words[0] in ("class", "struct", "union"):
                    name = words[1] if len(words) > 1 else None
                    found.append((name, Definition(self.path, head)))
                    self._define(at + 1, close, name, pairs, found)
                    at = start = close + 1
                elif self._is_value(head) or following in (",", "{", ";"):
                    at = close + 1
                else:
                    self._add(start, close + 1, owner, found)
                    at = start = close + 1
            elif value in ("(", "["):
                at = pairs.get(at, at) + 1
            else:
                at += 1

    @staticmethod
    def _is_value(head):
        """Whether "{" after this begins an initializer: there is a "=" that is not that of a default argument."""
        for token in head:
            if token.value in ("=", "("):
                return token.value == "="
        return False

    def _head(self, start, end):
        """Without "template <...>" and the words that a section of a class begins with."""
        while start < end and self.tokens[start].value in ("public", "protected", "private", ":"):
            start += 1
        if start < end and self.tokens[start].value == "template":
            depth = 0
            for at in range(start + 1, end):
                depth += {"<": 1, ">": -1}.get(self.tokens[at].value, 0)
                if depth == 0:
                    start = at + 1
                    break
        while start < end and self.tokens[start].value in ("static", "inline", "constexpr", "const", "typedef"):
            start += 1
        return self.tokens[start:end]

    def _add(self, start, end, owner, found):
        tokens = self.tokens[start:end]
        head = self._head(start, end)
        for at, token in enumerate(head):
            if at and token.value in ("(", "=", "{", "[") and head[at - 1].kind == "word":
                break
        else:
            at = len(head)
        if not at or head[at - 1].kind != "word":
            return
        name = head[at - 1].value
        definition = Definition(self.path, tokens)
        definition.line = head[0].line
        if name in ("TEST", "TEST_F", "TEST_P", "INSTANTIATE_TEST_SUITE_P"):
            first, second = [token.value for token in head[at + 1:at + 4] if token.kind == "word"][:2]
            if name == "INSTANTIATE_TEST_SUITE_P":
                name = second
            else:
                definition.name = (first, second)
                name = "TEST"
        elif name in ("SetUp", "TearDown"):
            name = head[at - 3].value if at > 2 and head[at - 2].value == "::" else owner
        found.append((name, definition))
