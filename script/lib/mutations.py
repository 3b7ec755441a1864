"""The changes that can be made to the sources, one at a time: what a tired author might have written.

The C++ sources are read by a tokenizer of our own, which relies on clang-format's spaces to tell a
comparison from a template's bracket. What comes out need not compile; whoever draws a change finds
that out.
"""

import bisect
import dataclasses
import pathlib
import re
import subprocess

FOLDERS = ["app", "colorpicker", "companion", "examples/agent", "lighting", "system", "ui"]
SUFFIXES = (".cpp", ".h", ".ui", ".qss")
LEFT_OUT = [
    "system/testing/",  # stands for the system in tests
    "_windows.cpp",  # does not compile here
]


@dataclasses.dataclass(frozen=True)
class Change:
    """Replaces what stands from start to end."""
    file: str
    line: int
    kind: str
    start: int
    end: int
    old: str
    new: str
    before: str  # the lines around it, on one line, and as many above as make them unique
    after: str  # the same, changed

    @property
    def old_lines(self):
        """How many more lines it touches than its first."""
        return self.old.count("\n")

    def name(self):
        """The same wherever the lines move to."""
        return f"{self.file}: {self.before}  =>  {self.after}"


def one_line(text):
    return re.sub(r"\s+", " ", text).strip()


class Places:
    """Collects what can be changed in a file: one or more alternatives at each place."""

    def __init__(self, file, text):
        self.file, self.text = file, text
        self.line_starts = [0] + [match.end() for match in re.finditer("\n", text)]
        self.places = {}

    def line(self, offset):
        return bisect.bisect_right(self.line_starts, offset)

    def add(self, kind, start, end, new):
        if self.text[start:end] == new:
            return
        first, last = self.line(start), self.line(max(start, end - 1))
        above = self.line_starts[first - 1]
        below = self.line_starts[last] if last < len(self.line_starts) else len(self.text)
        while above and self.text.count(self.text[above:below]) > 1:
            above = self.text.rfind("\n", 0, above - 1) + 1
        before = one_line(self.text[above:below])
        after = one_line(self.text[above:start] + new + self.text[end:below])
        self.places.setdefault((kind, start, end), []).append(
            Change(self.file, first, kind, start, end, self.text[start:end], new, before, after))

    def alternatives(self):
        """One list of changes for each place, in the order of the file."""
        return [self.places[key] for key in sorted(self.places, key=lambda key: (key[1], key))]


# ---- C++

TOKEN = re.compile(r"""
    (?P<space>\s+|//[^\n]*|/\*.*?\*/)
    | (?P<directive>(?m:^)\#(?:[^\n\\]|\\.)*)
    | (?P<string>(?:u8|u|U|L)?R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"|(?:u8|u|U|L)?"(?:[^"\\\n]|\\.)*")
    | (?P<char>(?:u8|u|U|L)?'(?:[^'\\\n]|\\.)+')
    | (?P<number>\.?\d(?:[\w.']|[eE][+-])*)
    | (?P<word>[A-Za-z_]\w*)
    | (?P<mark_>->\*|<<=|>>=|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL)

OTHER_OPERATORS = {
    "==": ["!="], "!=": ["=="],
    "<": ["<=", ">"], "<=": ["<", ">"], ">": [">=", "<"], ">=": [">", "<"],
    "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "|": ["&"], "&": ["|"], "^": ["|"], "<<": [">>"], ">>": ["<<"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="], "|=": ["&="], "&=": ["|="],
    "<<=": [">>="], ">>=": ["<<="],
}
OTHER_WORDS = {"true": "false", "false": "true", "min": "max", "max": "min", "qMin": "qMax",
               "qMax": "qMin"}
OPENING, CLOSING = "([{", ")]}"
# What "return {}" returns, or one of two values that are exchanged elsewhere.
EMPTY_VALUES = {"{}", "true", "false", "0", "nullptr", "std::nullopt", "QString()"}
# Where an operand of && or || ends.
OPERAND_ENDS = {",", ";", "=", "?", ":", "&&", "||", "return", "{", "}"}
NO_EXPRESSION = {
    "alignas", "auto", "case", "class", "const", "constexpr", "default", "do", "else", "enum",
    "explicit", "extern", "for", "friend", "goto", "if", "inline", "namespace", "operator",
    "private", "protected", "public", "return", "signals", "static", "static_assert", "struct",
    "switch", "template", "throw", "try", "typedef", "union", "using", "virtual", "while",
    "Q_OBJECT"}
# clang-format sets a blank between a type and a name, and none between a name and its bracket.
DECLARATION = re.compile(r"[\w:]+(<.*>)?(\s|\s?[&*]+)\w+\s*([=;({\[]|$)", re.DOTALL)
SYMMETRIC = {"min", "max", "gcd"}  # their arguments have no order
PARAMETER = re.compile(r"(const\s)?[\w:<>]+(\s[\w:<>]+)*\s[&*]*\w*(\s=.*)?", re.DOTALL)


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    start: int
    end: int
    partner: int = -1  # index of the other bracket
    around: int = -1  # index of the innermost opening bracket that this is in


def tokens_of(text):
    tokens, open_brackets = [], []
    for match in TOKEN.finditer(text):
        kind = match.lastgroup if match.lastgroup != "mark" else "string"
        if kind in ("space", "directive"):
            continue
        token = Token("mark" if kind == "mark_" else kind, match.group(), match.start(), match.end())
        if token.text in CLOSING and open_brackets:
            token.partner = open_brackets.pop()
            tokens[token.partner].partner = len(tokens)
        token.around = open_brackets[-1] if open_brackets else -1
        if token.text in OPENING:
            open_brackets.append(len(tokens))
        tokens.append(token)
    return tokens


class CppPlaces(Places):
    def __init__(self, file, text, names_of_scopes):
        super().__init__(file, text)
        self.tokens = tokens_of(text)
        self.names_of_scopes = names_of_scopes
        for i, token in enumerate(self.tokens):
            if self.in_static_assert(i):
                continue
            if token.kind == "number":
                if self.tokens[i - 1].text != "=" or self.tokens[i - 2].text not in (")", "const"):
                    self.number(i)  # and no pure virtual function
            elif token.kind == "string":
                self.string(i)
            elif token.kind == "char":
                self.char(token)
            elif token.kind == "word":
                self.word(i)
            elif token.text in OTHER_OPERATORS and self.between_blanks(token):
                self.operator(i)
            elif token.text in ("++", "--"):
                self.add("operator", token.start, token.end, "--" if token.text == "++" else "++")
            elif token.text in ("!", "~") and not self.between_blanks(token):
                self.add("operator", token.start, token.end, "")
            elif token.text == "?":
                self.choice(i)
            elif token.text in "({":
                self.elements(i)
            if token.text in ("{", ";", "}", ":"):
                self.statement(i + 1)

    def in_static_assert(self, i):
        around = i
        while around >= 0:
            if around and self.tokens[around - 1].text == "static_assert":
                return True
            around = self.tokens[around].around
        return False

    def between_blanks(self, token):
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()

    def span(self, first, last):
        return self.text[self.tokens[first].start:self.tokens[last].end]

    def is_of_time(self, i):
        """Whether a statement begins here with a name in milliseconds."""
        return i > 1 and self.tokens[i - 1].text == "=" and self.tokens[i - 2].text.endswith("Ms")

    def number(self, i):
        token = self.tokens[i]
        digits = token.text.replace("'", "")
        suffix = re.search(r"[uUlL]*$", digits).group()
        try:
            value = int(digits[:len(digits) - len(suffix)], 0)
            hexadecimal = digits[:2].lower() == "0x"
            others = {value + 1, max(value - 1, 0), value * 2 if value > 4 else 0}
            if self.is_of_time(i):
                others = {value * 2, value // 4}  # of a thousandth of a second nobody can tell
            texts = [f"{other:#x}" if hexadecimal else str(other) for other in sorted(others)]
        except ValueError:
            try:
                value, suffix = float(digits), ""
            except ValueError:
                return
            texts = [str(other) for other in sorted({value * 2, value + 0.5, 0.0} - {value})]
        for text in texts:
            self.add("constant", token.start, token.end, text + suffix)

    def string(self, i):
        token = self.tokens[i]
        if self.tokens[i - 1].text == "extern":
            return
        if self.tokens[i - 1].text == "(" and self.tokens[i - 2].text == "QT_TRANSLATE_NOOP":
            return  # a context that lupdate alone reads: script/lib/check-translations sees it
        start = token.text.index('"') + 1
        inside = token.text[start:-1]
        if "R" in token.text[:start] or not inside:
            return
        self.add("constant", token.start + start, token.end - 1, "")
        # A letter of it, not one behind a backslash or of a placeholder's.
        letter = re.search(r"(?<![\\%])[A-Za-z]", inside)
        if letter:
            other = "x" if letter.group() != "x" else "y"
            at = token.start + start + letter.start()
            self.add("constant", at, at + 1, other)

    def char(self, token):
        inside = token.text[token.text.index("'") + 1:-1]
        if len(inside) == 1:
            other = chr(ord(inside) + 1)
            self.add("constant", token.end - 2, token.end - 1, "x" if other in "\\'" else other)

    def word(self, i):
        token = self.tokens[i]
        if token.text in ("if", "while"):
            self.condition(i)
        elif token.text in OTHER_WORDS:
            self.add("constant", token.start, token.end, OTHER_WORDS[token.text])
        elif token.text == "return":
            end = self.end_of_statement(i)
            if end > i + 1 and self.span(i + 1, end - 1) not in EMPTY_VALUES:
                self.add("statement", token.start, self.tokens[end - 1].end, "return {}")
        elif i > 1 and self.tokens[i - 1].text == "::":
            for other in self.names_of_scopes.get(scoped_name(self.tokens, i), ()):
                if are_alike(token.text, other):
                    self.add("constant", token.start, token.end, other)

    def condition(self, i):
        opening = i + 1
        if self.tokens[opening].text == "constexpr":
            return
        closing = self.tokens[opening].partner
        inside = self.span(opening + 1, closing - 1)
        start, end = self.tokens[opening].end, self.tokens[closing].start
        if ";" in inside or DECLARATION.match(inside) or inside.startswith(("const ", "auto ")):
            return
        self.add("condition", start, end, f"!({inside})")
        self.add("condition", start, end, "false")
        if self.tokens[i].text == "if":
            self.add("condition", start, end, "true")

    def operator(self, i):
        token = self.tokens[i]
        before = self.tokens[i - 1]
        if before.kind == "mark" and before.text not in CLOSING or before.text == "return":
            return
        for other in OTHER_OPERATORS[token.text]:
            self.add("operator", token.start, token.end, other)
        if token.text not in ("&&", "||"):
            return
        left = i - 1
        while left >= 0 and self.tokens[left].text not in OPERAND_ENDS | {"(", "["}:
            left = self.tokens[left].partner if self.tokens[left].text in CLOSING else left
            left -= 1
            if left >= 0 and self.tokens[left].text == "}" and self.tokens[left].partner < 0:
                break
        right = i + 1
        while self.tokens[right].text not in OPERAND_ENDS | {")", "]"}:
            right = self.tokens[right].partner if self.tokens[right].text in OPENING else right
            right += 1
        self.add("condition", self.tokens[left + 1].start, self.tokens[i + 1].start, "")
        self.add("condition", self.tokens[i - 1].end, self.tokens[right - 1].end, "")

    def choice(self, i):
        """Both branches of c ? a : b, the other way round."""
        colon, depth = i + 1, 0
        while depth or self.tokens[colon].text != ":":
            text = self.tokens[colon].text
            depth += (text == "?") - (text == ":")
            if text in OPENING:
                colon = self.tokens[colon].partner
            colon += 1
            if text == ";" or colon >= len(self.tokens):
                return
        end = colon + 1
        while self.tokens[end].text not in (";", ",", ")", "]", "}"):
            end = self.tokens[end].partner if self.tokens[end].text in OPENING else end
            end += 1
        first, second = self.span(i + 1, colon - 1), self.span(colon + 1, end - 1)
        self.add("condition", self.tokens[i + 1].start, self.tokens[end - 1].end,
                 f"{second} : {first}")

    def elements(self, opening):
        """Arguments, or rows of a table: swapped with the next; rows left out as well."""
        token = self.tokens[opening]
        braces = token.text == "{"
        commas = [i for i in range(opening + 1, token.partner)
                  if self.tokens[i].around == opening and self.tokens[i].text in (",", ";")]
        if not commas or any(self.tokens[i].text == ";" for i in commas):
            return
        if braces and self.heads_type(opening):
            return
        edges = [opening, *commas, token.partner]
        spans = [(self.tokens[left + 1].start, self.tokens[right - 1].end)
                 for left, right in zip(edges, edges[1:]) if right > left + 1]
        texts = [self.text[start:end] for start, end in spans]
        if not braces and any(PARAMETER.fullmatch(text) for text in texts):
            return
        if not braces and any(text.startswith(("SIGNAL(", "SLOT(", "QIODevice::", "Qt::"))
                              for text in texts):
            return  # of different types
        if not braces and self.tokens[opening - 1].text in SYMMETRIC:
            return
        if not braces and (opening == 0 or self.tokens[opening - 1].kind != "word"
                           and self.tokens[opening - 1].text not in (">", ")", "]")):
            return
        for (start, left_end), (right_start, end), left, right in zip(spans, spans[1:], texts,
                                                                     texts[1:]):
            between = self.text[left_end:right_start]
            # A list of names alone is a set more often than not: its order means nothing.
            if not braces or re.search(r"[\"'{]|(?<!\w)\d", f"{left} {right}"):
                self.add("row" if braces else "arguments", start, end, right + between + left)
            if braces:
                self.add("row", start, right_start, "")

    def heads_type(self, brace):
        """Whether the brace opens the body of a type, an enumeration or a namespace."""
        i = brace - 1
        while i >= 0 and self.tokens[i].text not in (";", "{", "}", "(", ")"):
            if self.tokens[i].text in ("enum", "struct", "class", "namespace", "union"):
                return True
            i -= 1
        return False

    def end_of_statement(self, i):
        """Index of the semicolon; 0 where there is none at this depth."""
        while i < len(self.tokens) and self.tokens[i].text != ";":
            if self.tokens[i].text in CLOSING:
                return 0
            i = self.tokens[i].partner if self.tokens[i].text in OPENING else i
            i += 1
        return i if i < len(self.tokens) else 0

    def statement(self, i):
        """The statement that begins here, left out."""
        if i >= len(self.tokens) or self.tokens[i].around < 0 or self.tokens[i].kind != "word" \
                or self.tokens[i].text in NO_EXPRESSION:
            return
        block = self.tokens[i].around
        before = self.tokens[i - 1].text
        if self.tokens[block].text != "{" or self.heads_type(block):
            return
        if before == ":" and self.tokens[i - 2].text != "default" \
                and not any(self.tokens[j].text == "case" for j in range(max(0, i - 6), i)):
            return
        if before == "}" and self.tokens[self.tokens[i - 1].partner - 1].text in ("=", ","):
            return
        end = self.end_of_statement(i)
        if not end:
            return
        text = self.span(i, end)
        bare = re.sub(r"^(emit|delete)\s", "", text)
        if not DECLARATION.match(bare):
            self.add("statement", self.tokens[i].start, self.tokens[end].end, ";")


def are_alike(name, other):
    """Whether both may be of one enumeration, as LeftButton and RightButton, or Key_Up and Key_End.

    Of those that begin or end with the same word some are: the others do not compile."""
    parts, others = (re.findall(r"[A-Z]?[a-z0-9]+|[A-Z]+", text) or [text] for text in (name, other))
    return "_" not in name + other and len(parts) == len(others) == 1 \
        or parts[0] == others[0] or parts[-1] == others[-1]


def scoped_name(tokens, i):
    """The scope of a constant, such as Qt:: of Qt::Key_Up; empty where it is something else."""
    scope = tokens[i - 2]
    after = tokens[i + 1].text if i + 1 < len(tokens) else ""
    before = tokens[i - 3].text if i > 2 else ""
    if scope.kind != "word" or scope.text == "std" or after in ("(", "<", "::", "{", "&", "*") \
            or before in ("::", "using", "&", "<") or tokens[i].text[0] == "~" \
            or i + 1 < len(tokens) and tokens[i + 1].kind == "word":
        return ""
    return scope.text


def names_by_scope(texts):
    """The constants that the sources name, by their scopes."""
    found = {}
    for text in texts:
        tokens = tokens_of(text)
        for i in range(2, len(tokens)):
            if tokens[i].kind == "word" and tokens[i - 1].text == "::":
                scope = scoped_name(tokens, i)
                if scope:
                    found.setdefault(scope, set()).add(tokens[i].text)
    return {scope: sorted(names) for scope, names in found.items()}


# ---- The form

class FormPlaces(Places):
    def __init__(self, file, text):
        super().__init__(file, text)
        self.each(r"<string[^>]*>([^<]+)</string>", lambda text: ["", "x" + text[1:]])
        self.each(r"<(?:number|x|y|width|height|weight|pointsize|horstretch|verstretch)>(\d+)<",
                  lambda text: [str(int(text) + 1), str(int(text) * 2 or 9)])
        self.each(r"<bool>(\w+)<", lambda text: [OTHER_WORDS[text]])
        self.each(r" (?:row|column|rowspan|colspan)=\"(\d+)\"", lambda text: [str(int(text) + 1)])
        self.each(r" \w*(?:stretch|minimumheight|minimumwidth)=\"([\d,]+)\"", lambda text: [
            re.sub(r"\d+", lambda number: str(int(number.group()) + 1), text, count=1),
            ",".join(reversed(text.split(",")))])
        self.each(r" alignment=\"Qt::Align(\w+)\"",
                  lambda text: ["Left" if text != "Left" else "Right"])
        for tag in ("enum", "set"):
            values = sorted(set(re.findall(f"<{tag}>(.*?)<", text)))
            self.each(f"<{tag}>(.*?)<", lambda text, values=values: [
                value for value in values
                if value != text and value.split("::")[:-1] == text.split("::")[:-1]])
        for match in re.finditer(r"\n *<property name=.*?</property>", text, re.DOTALL):
            self.add("statement", *match.span(), "")
        stops = list(re.finditer(r"<tabstop>.*?</tabstop>", text))
        for first, second in zip(stops, stops[1:]):
            self.add("row", first.start(), second.end(),
                     second.group() + text[first.end():second.start()] + first.group())

    def each(self, pattern, others):
        for match in re.finditer(pattern, self.text):
            for other in others(match.group(1)):
                self.add("constant", *match.span(1), other)


# ---- The style sheet

class SheetPlaces(Places):
    def __init__(self, file, text):
        super().__init__(file, text)
        bare = re.sub(r"/\*.*?\*/", lambda match: re.sub(r"[^\n]", " ", match.group()), text,
                      flags=re.DOTALL)
        colours = sorted(set(re.findall(r"#[0-9a-fA-F]{6}\b", bare)))
        pictures = sorted(set(re.findall(r"url\(.*?\)", bare)))
        for body in re.finditer(r"\{[^}]*\}", bare):
            offset = body.start()
            for match in re.finditer(r"#[0-9a-fA-F]{6}\b", body.group()):
                for other in colours:
                    self.replace("constant", offset, match, other)
            for match in re.finditer(r"url\(.*?\)", body.group()):
                for other in pictures:
                    self.replace("constant", offset, match, other)
            for match in re.finditer(r"(?<![\w#.])\d+(\.\d+)?(?=px|em|%|[,);\s])", body.group()):
                value = float(match.group())
                for other in (value + 1, value * 2) if value else (3.0,):
                    self.replace("constant", offset, match, f"{other:g}")
            for match in re.finditer(r"[\w-]+:[^;{}]*;", body.group()):
                self.replace("statement", offset, match, "")

    def replace(self, kind, offset, match, new):
        self.add(kind, offset + match.start(), offset + match.end(), new)


def sources(root):
    """The files that are changed."""
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "--", *FOLDERS],
                            cwd=root, check=True, capture_output=True, text=True).stdout
    return [name for name in sorted(set(listed.splitlines()))
            if name.endswith(SUFFIXES) and not any(part in name for part in LEFT_OUT)
            and (root / name).is_file()]


def all_places(root, folder):
    """The alternatives at each place of every file of the folder, which is a copy of the root."""
    # As the bytes are: the style sheet has line ends of Windows.
    texts = {name: (pathlib.Path(folder) / name).read_bytes().decode() for name in sources(root)}
    scopes = names_by_scope(text for name, text in texts.items() if name.endswith((".cpp", ".h")))
    places = []
    for name, text in texts.items():
        if name.endswith(".ui"):
            places += FormPlaces(name, text).alternatives()
        elif name.endswith(".qss"):
            places += SheetPlaces(name, text).alternatives()
        else:
            places += CppPlaces(name, text, scopes).alternatives()
    return places
