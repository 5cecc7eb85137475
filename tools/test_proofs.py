"""What each test has in it, and which tests therefore prove a behaviour."""
import collections
import re

from cpp_source import HOLE, Source
from product_behaviour import branch_of

MOST = 3

# What may stand before and after a text that is part of a longer one: the reason in "<what failed>: <reason> (<code>)".
# "|" stands between the parts of a filter in the tests of file dialogs.
BEFORE = rf"(?:^|[{HOLE}\n|\"]|[:,.] )"
AFTER = rf"(?:$|[{HOLE}\n|\"]|[:,] | [(\"])"


def pattern(text):
    """What a text of a test must hold to be that one. Tests may leave out the system's own words at its end."""
    head, hole, tail = re.fullmatch(rf"(.*?)(?:({HOLE})(\W*))?", text, re.S).groups()
    parts = ".*?".join(map(re.escape, head.split(HOLE)))
    if hole:
        parts += f"(?:.*?{re.escape(tail)})?"
    return re.compile(BEFORE + parts + AFTER, re.S)


class Test:
    def __init__(self, suite, case, definition):
        self.name, self.definition = f"{suite}.{case}", definition
        self.branch = branch_of(definition.file.as_posix())
        # How many it has a part in proving.
        self.behaviours = 0


# Programs of their own, whose tests say nothing of the plug-in.
OTHERS = {"fuzz", "host", "snapins", "standin", "window"}


# Branches whose tests lie in one folder.
NEIGHBOURS = [{"Fonts", "Logs"}, {"Templates", "Resources", "Access"}]


def may_prove(test, behaviour):
    """A branch is proven by its own tests or by those of the frame, what all branches share by the tests of any."""
    return (test.branch in (behaviour.branch, "Frame") or behaviour.branch == "Frame" or
            "Library" in behaviour.branch or any({test.branch, behaviour.branch} <= group for group in NEIGHBOURS))


class Proofs:
    def __init__(self, folder):
        self.faults, self.tests, self.markers = [], [], []
        self._folder = folder
        self._sources = {path: Source(path) for path in sorted(folder.rglob("*"))
                         if path.suffix in (".cpp", ".h") and OTHERS.isdisjoint(path.parts)}
        self._named = {path: collections.defaultdict(list) for path in self._sources}
        for path, source in self._sources.items():
            for name, definition in source.definitions:
                self._named[path][name].append(definition)
        self._seen = {path: self._visible(path) for path in self._sources}
        self._find_tests()
        self._spread()
        self._by_text = collections.defaultdict(set)
        self._by_feature = collections.defaultdict(set)
        for definition in self._reached:
            for text in definition.texts:
                self._by_text[text].add(definition)
            for kind, features in (("word", definition.words), ("number", definition.numbers),
                                   ("measure", definition.measures),
                                   ("guid", {text.upper() for text in definition.texts if text.startswith("{")})):
                for feature in features:
                    self._by_feature[kind, feature].add(definition)

    def _visible(self, path):
        """The source itself, what it includes of the tests, and the sources that belong to those."""
        seen, todo = set(), [path]
        while todo:
            one = todo.pop()
            if one in seen:
                continue
            seen.add(one)
            for include in self._sources[one].includes:
                found = next((place / include for place in (*one.parents, self._folder / "acceptance") if
                              place / include in self._sources), None)
                if found:
                    todo += [found, *({found.with_suffix(".cpp")} & self._sources.keys())]
        return sorted(seen)

    def _find_tests(self):
        for path, source in self._sources.items():
            built = self._is_built(path)
            ends = {end: text for text, end in source.comments}
            for definition in self._named[path].get("TEST", ()):
                test = Test(*definition.name, definition)
                if not built:
                    self.faults.append(f"{path}: no CMakeLists.txt builds it, so that its tests do not run. Add it.")
                    break
                if test.name.startswith("DISABLED_") or ".DISABLED_" in test.name:
                    continue
                self.tests.append(test)
                self.markers += [(claim.strip(), test) for claim in
                                 re.findall(r"Proves: (.*?)\.(?= Proves: |$)", ends.get(definition.line, ""))]

    def _is_built(self, path):
        for folder in path.parents:
            script = folder / "CMakeLists.txt"
            if script.exists() and re.search(rf"(?<![\w/]){re.escape(path.relative_to(folder).as_posix())}\b",
                                             script.read_text()):
                return True
            if folder == self._folder:
                return False
        return False

    def _spread(self):
        """Notes for every definition which tests use it, over however many steps."""
        self._reached = collections.defaultdict(set)
        uses = {}
        for test in self.tests:
            done, todo = set(), [test.definition]
            while todo:
                definition = todo.pop()
                if id(definition) in done:
                    continue
                done.add(id(definition))
                self._reached[definition].add(test)
                if id(definition) not in uses:
                    uses[id(definition)] = [used for path in self._seen[definition.file] for word in definition.words
                                            if word != "TEST" for used in self._named[path].get(word, ())]
                todo += uses[id(definition)]

    def _holders(self, kind, wanted):
        """The definitions that have it in them."""
        if kind == "text":
            expected = pattern(wanted)
            longest = max(wanted.split(HOLE), key=len)
            return {definition for text, holders in self._by_text.items()
                    if longest in text and expected.search(text) for definition in holders}
        if kind == "exact":
            return self._by_text.get(wanted, set())
        if kind == "matches":
            return {definition for text, holders in self._by_text.items() if re.fullmatch(wanted, text, re.S)
                    for definition in holders}
        return self._by_feature.get((kind, wanted), set())

    def of(self, behaviour):
        """Those that prove it, each with how much of what is needed the test has in itself."""
        if not behaviour.needs:
            return {test: 1 for claim, test in self.markers if claim == behaviour.claim}
        proving = None
        for need in behaviour.needs:
            holders = self._holders(*need)
            tests = {test: test.definition in holders for holder in holders for test in self._reached[holder]}
            proving = tests if proving is None else {test: count + tests[test] for test, count in proving.items()
                                                     if test in tests}
        proving = {test: count for test, count in proving.items() if may_prove(test, behaviour)}
        for test in proving:
            test.behaviours += 1
        return proving

    @staticmethod
    def best(proving, behaviour):
        return sorted(proving, key=lambda test: (test.branch != behaviour.branch, -proving[test], test.behaviours,
                                                 test.name))[:MOST]

    def unknown_markers(self, behaviours):
        known = {behaviour.claim for behaviour in behaviours if not behaviour.needs}
        return [f"{test.definition.file}: {test.name} says that it proves \"{claim}\", which is no behaviour. Say it in "
                "the words of the comment \"Kept as is: ...\" (or of this report)."
                for claim, test in self.markers if claim not in known]
