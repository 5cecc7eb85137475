"""What the product does, as far as its own sources say it in a form that can be read off."""
import re
from dataclasses import dataclass, field

from cpp_source import HOLE, Source, joined_texts, partners

# The branches: a source belongs to the first that its path matches, and so does a test.
PLACES = [
    ("Service", r"frame/.*Service"),
    ("Fonts", r"fonts_logs/.*Font|/fonts\.rc$"),
    ("Logs", r"fonts_logs/|/logs\.rc$"),
    ("Access", r"templates/.*(TemplateUser|[Aa]ccess)|/templateusers\.rc$"),
    ("Resources", r"templates/.*(Resource|EditFileDlg)|/resourcefolders\.rc$"),
    ("Templates", r"templates/|/templates\.rc$"),
    ("Hot folders", r"(?<!brimlow/)hotfolders/|/hotfolders\.rc$"),
    ("Users", r"users/|/users\.rc$"),
    ("Certificates", r"certificates/|/certificates\.rc$"),
    ("Settings", r"settings/|PropertyDlg|/dialogs\.rc$"),
    ("Library: files and texts", r"brimlow/system/|unit/system/"),
    ("Library: databases", r"brimlow/database/|unit/database/"),
    ("Library: hot folders", r"brimlow/hotfolder/|unit/hotfolder/"),
    ("Library: applications and users", r"brimlow/tessaro/|unit/tessaro/"),
    ("Library: certificates", r"brimlow/security/|unit/security/"),
    ("Frame", ""),
]
BRANCHES = ["Frame", "Settings", "Service", "Fonts", "Logs", "Hot folders", "Templates", "Resources", "Access", "Users",
            "Certificates"] + [branch for branch, _ in PLACES if branch.startswith("Library")]


def branch_of(path):
    return next(branch for branch, expression in PLACES if re.search(expression, path))


KINDS = ["Exports", "Nodes", "Columns", "What nodes do", "Commands", "Dialogs", "Settings", "Texts", "Kept as is"]

# What the program fills in, in the formats of Core::StringFormatStream and of printf.
PLACEHOLDER = re.compile(r"\{\d\}|%[%gds]")

HANDLERS = {"OnDblClick": "a double-click", "OnDelete": "Delete", "OnRefresh": "the console's refresh",
            "OnViewChange": "a change that another view reports"}

# The window class of each control statement of a resource script.
CONTROLS = {"LTEXT": "Static", "GROUPBOX": "Button", "PUSHBUTTON": "Button", "DEFPUSHBUTTON": "Button",
            "AUTOCHECKBOX": "Button", "EDITTEXT": "Edit", "COMBOBOX": "ComboBox", "LISTBOX": "ListBox"}


@dataclass
class Behaviour:
    branch: str
    kind: str
    name: str
    where: str
    # What a test must have in it, each as (kind, what); none: a marker.
    needs: list = field(default_factory=list)

    @property
    def claim(self):
        """How a test says that it proves this one."""
        return self.name.replace("`", "")

    @property
    def advice(self):
        if not self.needs:
            return f"Write one and put \"// Proves: {self.claim}.\" above it."
        return "Write one that has in it: " + ", ".join(f"{kind} {what!r}" for kind, what in self.needs)


def is_sentence(text):
    """Two words or more, that a person may come to read."""
    return re.search(r"[A-Za-z]", text) and re.search(r"\S[ ]+\S", text.replace(HOLE, "x"))


class Product:
    def __init__(self, root):
        self._root = root
        self.behaviours, self.faults = [], []
        self._ids = dict(re.findall(r"#define (\w+) (\d+)", (
            root / "tmgmt/resources/include/tmgmt/resources/ids.h").read_text()))
        self._ids |= {"IDOK": "1", "IDCANCEL": "2", "-1": "-1"}
        paths = sorted(path for folder in ("tmgmt", "brimlow", "platform") for path in (root / folder).rglob("*")
                       if path.suffix in (".h", ".cpp") and "posix" not in path.parts)
        self._sources = {path: Source(path) for path in paths}
        self._constants = {name: definition for source in self._sources.values()
                           for name, definition in source.definitions
                           if definition.tokens[0].value in ("const", "constexpr", "inline")}
        # What the rows of the table say already, and what only developers see.
        self._told = set()
        self._read_exports()
        self._read_nodes()
        for path, source in self._sources.items():
            self._read_columns(path, source)
            self._read_settings(path, source)
            self._read_texts(path, source)
            self._read_oddities(path, source.comments)
        self._read_resources()

    def _add(self, kind, name, path, line, *needs):
        place = path.relative_to(self._root).as_posix()
        branch = branch_of(place)
        if not any((one.branch, one.kind, one.name) == (branch, kind, name) for one in self.behaviours):
            self.behaviours.append(Behaviour(branch, kind, name, f"{place}:{line}", list(needs)))

    def _read_exports(self):
        path = self._root / "tmgmt/module/TMgmt.def"
        for name in re.findall(r"^ +(\w+)", path.read_text(), re.M):
            self._add("Exports", f"`{name}`", path, 1, ("exact", name))

    def _read_nodes(self):
        """Classes with a node type, and which of the notifications each handles itself or through its bases."""
        bases, handled, types = {}, {}, {}
        for path, source in self._sources.items():
            if path.suffix != ".h" or "tmgmt" not in path.parts:
                continue
            for name, definition in source.definitions:
                words = [token.value for token in definition.tokens if token.kind == "word"]
                if words[:1] == ["class"] and ":" in (token.value for token in definition.tokens):
                    owner, bases[name] = name, words[3:]
                    handled.setdefault(owner, set())
                elif name in HANDLERS and "override" in words:
                    handled[owner].add(name)
                elif name == "nodeType" and definition.numbers:
                    numbers = [int(token.value, 16) for token in definition.tokens if token.kind == "number"]
                    types[owner] = path, definition, "{{{:08X}-{:04X}-{:04X}-{:02X}{:02X}-{}}}".format(
                        *numbers[:5], "".join(f"{number:02X}" for number in numbers[5:]))
        for name, (path, definition, guid) in types.items():
            title = self._display_name(path)
            self._add("Nodes", f"`{name}`: " + (f"\"{title}\"" if title else "named after what it stands for"), path,
                      definition.tokens[0].line, ("guid", guid),
                      *([("matches", rf"(.*\\)?{re.escape(title)}")] if title else []))
            for handler in sorted(self._handled(name, bases, handled)):
                self._add("What nodes do", f"`{name}` on {HANDLERS[handler]}", path, definition.tokens[0].line)

    def _handled(self, name, bases, handled):
        return handled[name] | self._handled(bases[name][0], bases, handled) if name in handled else set()

    def _display_name(self, header):
        source = self._sources.get(next((path for path in self._sources if path.name == header.stem + ".cpp"), None))
        tokens = source.tokens if source else []
        for before, equals, name in zip(tokens, tokens[1:], tokens[2:]):
            if (before.value, equals.value) == ("displayName", "="):
                constant = self._constants.get(name.value)
                texts = [token for token in (constant.tokens if constant else [name]) if token.kind == "text"]
                self._told |= {id(text) for text in texts}
                # Some get the name of what they stand for right after.
                if texts and not any(token.value == "setDisplayName" for token in tokens):
                    return texts[0].value
        return None

    def _read_columns(self, path, source):
        pairs = partners(source.tokens)
        for at, token in enumerate(source.tokens):
            if token.value == "insertColumn" and source.tokens[at + 1].value == "(":
                call = source.tokens[at + 2:pairs[at + 1]]
                if len(call) > 3 and call[-3].kind == "text":
                    title, width = call[-3].value, call[-1].value
                    self._told.add(id(call[-3]))
                    self._add("Columns", f"`{path.stem}`: \"{title}\", {width} pixels", path, token.line,
                              ("measure", (title, width)))

    def _read_settings(self, path, source):
        pairs = partners(source.tokens)
        for at, token in enumerate(source.tokens):
            if (token.value == "PropertyItem" and source.tokens[at - 1].value == "new" and
                    source.tokens[at + 1].value == "("):
                call = source.tokens[at + 2:pairs[at + 1]]
                texts = []
                for part in call:
                    constant = self._constants.get(part.value) if part.kind == "word" else None
                    texts += [value.value for value in (constant.tokens if constant else [part])
                              if value.kind in ("text", "number")]
                if texts:
                    self._told |= {id(part) for part in call}
                    self._add("Settings", f"\"{texts[-2]}\", key `{texts[0]}`, by default \"{texts[1]}\"", path,
                              token.line, *(("exact", text) for text in texts))

    def _read_texts(self, path, source):
        for before, token in zip(source.tokens, source.tokens[2:]):
            if token.kind == "text" and before.value == "OutputDebugStringW":
                self._told.add(id(token))
        for text, token in joined_texts(source.tokens):
            text = PLACEHOLDER.sub(lambda found: "%" if found.group() == "%%" else HOLE, text)
            if token.wide and id(token) not in self._told and is_sentence(text):
                self._add("Texts", f"\"{text}\"", path, token.line, ("text", text))

    def _read_oddities(self, path, comments):
        for comment, end in comments:
            found = re.search(r"Kept as is: (.*?)\.$", comment)
            if found:
                self._add("Kept as is", found.group(1), path, end - 1)
            elif re.search(r"kept as is", comment, re.I):
                self.faults.append(f"{path.relative_to(self._root)}:{end - 1}: this comment must end in \"Kept as is: "
                                   "<what, in one sentence>.\", so that a test can be found for it.")

    def _read_resources(self):
        folder = self._root / "tmgmt/resources"
        for path in sorted(folder.glob("*.rc")):
            content = path.read_text(encoding="utf-8")
            self._read_oddities(path, [(re.sub(r"\s+", " ", comment).strip(), content[:found.end()].count("\n") + 2)
                                       for found in re.finditer(r"/\*(.*?)\*/", content, re.S)
                                       for comment in found.groups()])
            content = re.sub(r"/\*.*?\*/", lambda found: re.sub(r"[^\n]", " ", found.group()), content, flags=re.S)
            blocks = re.finditer(r"^(\w+) (MENU|DIALOGEX)([^{]*)\n\{\n(.*?)^\}|^(STRINGTABLE)\n\{\n(.*?)^\}", content,
                                 re.M | re.S)
            for block in blocks:
                line = content[:block.start()].count("\n") + 1
                if block.group(2) == "MENU":
                    self._read_menu(path, line, block.group(1), block.group(4))
                elif block.group(2) == "DIALOGEX":
                    self._read_dialog(path, line, *block.group(1, 3, 4))
                else:
                    for name, text in re.findall(r'(\w+) "(.*)"', block.group(6)):
                        number = self._ids[name]
                        self._add("Texts", f"\"{text}\", text {number}", path, line, ("exact", text),
                                  ("number", number))

    def _read_menu(self, path, line, menu, items):
        for text, command in re.findall(r'MENUITEM "(.*)", (\w+)', items):
            self._add("Commands", f"{self._ids[command]} \"{text}\", of menu {self._ids[menu]}", path, line,
                      ("exact", text), ("number", self._ids[command]))

    def _read_dialog(self, path, line, name, head, statements):
        caption = re.search(r'CAPTION "(.*)"', head)
        needs = [("exact", caption.group(1))] if caption else [("word", self._dialog_class(name))]
        for statement in re.findall(r"^ +(\w+ .*)$", statements, re.M):
            kind, text, control = re.match(r'(\w+) (?:"((?:[^"\\]|\\.)*)", )?(-?\w+)', statement).groups()
            kind = CONTROLS.get(kind) or re.search(r'"(\w+)", BS_', statement).group(1)
            # Texts of what has a number may be others by the time the dialog is seen.
            needs.append(("matches", rf"{self._ids[control]} {kind} " +
                          (re.escape(text.replace("\\n", "\n")) if text and control == "-1" else ".*")))
        self._add("Dialogs", f"{self._ids[name]} " + (f"\"{caption.group(1)}\"" if caption else "without a caption") +
                  f", its {len(needs) - 1} controls", path, line, *needs)

    def _dialog_class(self, name):
        """The class that is made from the dialog."""
        for path, source in self._sources.items():
            for maker, mark, word in zip(source.tokens, source.tokens[1:], source.tokens[2:]):
                if word.value == name and mark.value in "(," and re.search("Dialog|Dlg|wizard", maker.value):
                    return path.stem
        return name


def behaviours_of(root):
    product = Product(root)
    return product.behaviours, product.faults
