#!/usr/bin/env python3
"""Reads the vendor's declarations of the service (service/*.h) and writes, at build time, what
follows from them:

    generate.py --out DIR HEADER...
        DIR/Shape.cpp      the table of the service's shape: interfaces and their accessors,
                           operations with each parameter's name, type and direction, records and
                           their fields, and the setter/getter pairs the panel's memory keeps;
        DIR/Adaptors.cpp   one adaptor per interface (each operation a typed call to a backend),
                           the records' fields for their JSON form, and the manager.

    generate.py --profile FILE --out-file OUT HEADER...
        OUT: the profile FILE built into a library, one text per interface, after checking it
        names only what the service has.

The reader takes what a vendor's header holds: comments of both kinds, preprocessor lines,
namespaces, forward declarations, constants, enumerations, records (fields with initialisers,
fixed-size arrays, constructors), and interfaces whose virtual operations may run over several
lines, with template arguments holding commas, const, references, pointers and array sizes. What it
cannot read, or what it could read but no adaptor can pass faithfully, it names with the file and
the line, and writes nothing.
"""

import argparse
import json
import os
import re
import sys
from dataclasses import dataclass, field
from typing import List, Optional


class Unreadable(Exception):
    """A declaration the generator cannot turn into a faithful adaptor: "file:line: what"."""


# ---- tokens ---------------------------------------------------------------------------------

@dataclass
class Token:
    text: str
    line: int


_TOKEN = re.compile(r"""
    (?P<blank>[ \t\r\f\v]+|\\\n)
  | (?P<newline>\n)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<open_comment>/\*)
  | (?P<literal>"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)*')
  | (?P<name>[A-Za-z_]\w*)
  | (?P<number>\d[\w.']*)
  | (?P<punct>::|\.\.\.|[{}()\[\]<>;:,=*&~+\-/|!?.%^])
""", re.S | re.X)


def tokens(path, text):
    """The tokens of a header: comments and preprocessor lines dropped, each token with its line."""
    found, at, line, line_start = [], 0, 1, True
    while at < len(text):
        if line_start:
            directive = re.match(r"[ \t]*#(?:[^\n\\]|\\.)*", text[at:], re.S)
            if directive:
                line += directive.group(0).count("\n")
                at += directive.end()
                continue
        match = _TOKEN.match(text, at)
        if not match:
            raise Unreadable(f"{path}:{line}: cannot read {text[at:at + 20].split()[0]!r}")
        kind = match.lastgroup
        if kind == "open_comment":
            raise Unreadable(f"{path}:{line}: a comment that never ends")
        if kind not in ("blank", "newline", "comment"):
            found.append(Token(match.group(0), line))
        line += match.group(0).count("\n")
        line_start = kind == "newline" or (line_start and kind == "blank")
        at = match.end()
    return found


# ---- what a header declares -----------------------------------------------------------------

@dataclass
class CType:
    """A C++ type as declared: `const` and the base (with its template arguments), then `*` or `&`."""
    base: str                      # "int", "unsigned int", "String16", "std::vector"
    args: List["CType"] = field(default_factory=list)   # template arguments
    const: bool = False
    pointer: bool = False
    reference: bool = False

    def value(self):
        """The type itself, without const, pointer or reference."""
        text = self.base
        if self.args:
            text += "<" + ", ".join(a.spelling() for a in self.args) + ">"
        return text

    def spelling(self):
        return (("const " if self.const else "") + self.value() + ("*" if self.pointer else "")
                + ("&" if self.reference else ""))


@dataclass
class Declarator:
    ctype: CType
    name: str
    size: Optional[str]            # the array size as written, or None
    line: int


@dataclass
class Function:
    result: CType
    name: str
    params: List[Declarator]
    const: bool
    virtual: bool
    static: bool
    line: int


@dataclass
class Scope:
    kind: str                      # "class", "struct", "enum"
    name: str
    namespace: str
    path: str
    line: int
    fields: List[Declarator] = field(default_factory=list)
    functions: List[Function] = field(default_factory=list)


_BUILTIN = {"void", "bool", "char", "short", "int", "long", "signed", "unsigned", "float",
            "double", "wchar_t", "char16_t", "char32_t", "auto"}
_QUALIFIERS = {"const", "volatile"}


class Parser:
    """Reads the declarations of one header at namespace level."""

    def __init__(self, path, text):
        self.path = path
        self.tokens = tokens(path, text)
        self.at = 0
        self.scopes: List[Scope] = []
        self.constants = {}        # name: value

    # -- the token stream
    def peek(self, ahead=0):
        i = self.at + ahead
        return self.tokens[i].text if i < len(self.tokens) else ""

    def line(self):
        t = self.tokens[min(self.at, len(self.tokens) - 1)] if self.tokens else Token("", 1)
        return t.line

    def fail(self, what, line=None):
        raise Unreadable(f"{self.path}:{line or self.line()}: {what}")

    def take(self, expected=None):
        if self.at >= len(self.tokens):
            self.fail("the header ends inside a declaration")
        t = self.tokens[self.at]
        if expected is not None and t.text != expected:
            self.fail(f"expected {expected!r}, found {t.text!r}")
        self.at += 1
        return t.text

    def skip_balanced(self):
        """Skips a bracketed group that starts here: ( ), [ ], { } or < >."""
        pairs = {"(": ")", "[": "]", "{": "}", "<": ">"}
        close, depth = pairs[self.peek()], 0
        opening = self.peek()
        while True:
            t = self.take()
            depth += t == opening
            depth -= t == close
            if depth == 0:
                return

    def skip_statement(self):
        """Skips to the end of a declaration: its `;`, or a body in braces."""
        while self.peek() not in (";", ""):
            if self.peek() in "({[":
                was_brace = self.peek() == "{"
                self.skip_balanced()
                if was_brace and self.peek() != ";":
                    return
            else:
                self.take()
        self.take(";")

    # -- namespace level
    def read(self):
        self.declarations("")
        if self.at < len(self.tokens):
            self.fail(f"unexpected {self.peek()!r}")
        return self

    def declarations(self, namespace):
        while self.peek() not in ("", "}"):
            word = self.peek()
            if word == "namespace":
                self.take()
                name = ""
                while self.peek() != "{":
                    name += self.take()
                self.take("{")
                self.declarations(namespace + name + "::")
                self.take("}")
            elif word in ("class", "struct"):
                self.record_or_class(namespace)
            elif word == "enum":
                self.enumeration(namespace)
            elif word in ("constexpr", "static", "const") and "=" in self.statement_ahead():
                self.constant()
            elif word in ("static_assert", "using", "typedef", "template", "extern"):
                if word in ("typedef", "template") or (word == "using" and self.peek(1) != "namespace"):
                    self.fail(f"{word} declarations are not read: spell the type out where it is used")
                self.skip_statement()
            elif word == ";":
                self.take()
            else:
                self.fail(f"cannot read a declaration beginning {word!r}")

    def statement_ahead(self):
        out, i = [], self.at
        while i < len(self.tokens) and self.tokens[i].text not in (";", "{"):
            out.append(self.tokens[i].text)
            i += 1
        return out

    def constant(self):
        line = self.line()
        words = self.statement_ahead()
        value = words[words.index("=") + 1:]
        name = words[words.index("=") - 1]
        text = "".join(value)
        if not re.fullmatch(r"\d+[uUlL]*", text):
            self.fail(f"constant {name}: only a whole number is read, not {text!r}", line)
        self.constants[name] = int(re.match(r"\d+", text).group(0))
        self.skip_statement()

    def enumeration(self, namespace):
        line = self.line()
        self.take("enum")
        if self.peek() in ("class", "struct"):
            self.take()
        name = self.take()
        if self.peek() == ":":          # its integer type: the value crosses as an integer
            self.take()
            self.ctype()
        if self.peek() == "{":
            self.skip_balanced()
        self.take(";")
        self.scopes.append(Scope("enum", name, namespace, self.path, line))

    def record_or_class(self, namespace):
        line = self.line()
        kind = self.take()
        name = self.take()
        if self.peek() == ";":        # a forward declaration
            self.take()
            return
        if self.peek() == "final":
            self.take()
        if self.peek() == ":":
            while self.peek() != "{":
                self.take()
        self.take("{")
        scope = Scope(kind, name, namespace, self.path, line)
        public = kind == "struct"
        while self.peek() != "}":
            word = self.peek()
            if word in ("public", "protected", "private") and self.peek(1) == ":":
                public = word == "public"
                self.take()
                self.take()
            elif word in ("static_assert", "using", "friend") or word == ";":
                self.skip_statement() if word != ";" else self.take()
            elif not public:
                self.skip_statement()
            else:
                self.member(scope)
        self.take("}")
        self.take(";")
        self.scopes.append(scope)

    def member(self, scope):
        line = self.line()
        words = self.statement_ahead()
        if words[:1] == ["~"] or words[:2] == ["virtual", "~"]:
            return self.skip_statement()      # the destructor
        if words[:1] == [scope.name] and len(words) > 1 and words[1] == "(":
            return self.skip_statement()      # a constructor
        if words[:1] == ["explicit"]:
            return self.skip_statement()
        if "(" in words:
            return scope.functions.append(self.function())
        # fields: `type a = 0;`, `type a[N] = {};`, `type a, b;`
        ctype = self.ctype()
        while True:
            scope.fields.append(self.declarator(ctype, line))
            if self.peek() == "=":
                self.take()
                while self.peek() not in (",", ";"):
                    self.skip_balanced() if self.peek() in "({[" else self.take()
            elif self.peek() == "{":
                self.skip_balanced()
            if self.peek() == ",":
                self.take()
                continue
            self.take(";")
            return

    def function(self):
        line = self.line()
        virtual = static = False
        while self.peek() in ("virtual", "static", "inline", "explicit"):
            virtual |= self.peek() == "virtual"
            static |= self.peek() == "static"
            self.take()
        result = self.ctype()
        name = self.take()
        if not re.fullmatch(r"[A-Za-z_]\w*", name):
            self.fail(f"cannot read the operation {name!r}")
        self.take("(")
        params = []
        if self.peek() == "void" and self.peek(1) == ")":
            self.take()
        while self.peek() != ")":
            params.append(self.parameter(len(params)))
            if self.peek() == ",":
                self.take()
        self.take(")")
        const = False
        while self.peek() in ("const", "override", "final", "noexcept"):
            const |= self.take() == "const"
        if self.peek() == "=":
            self.take()
            self.take()          # 0, default or delete
            self.take(";")
        elif self.peek() == "{":
            self.skip_balanced()
            if self.peek() == ";":
                self.take()
        else:
            self.take(";")
        return Function(result, name, params, const, virtual, static, line)

    def parameter(self, index):
        line = self.line()
        ctype = self.ctype()
        if self.peek() in (",", ")", "="):
            declarator = Declarator(ctype, f"arg{index}", None, line)
        else:
            declarator = self.declarator(ctype, line)
        if self.peek() == "=":          # a default argument: the adaptor takes it as given
            self.take()
            depth = 0
            while depth or self.peek() not in (",", ")"):
                t = self.take()
                depth += t in "([{<"
                depth -= t in ")]}>"
        return declarator

    def declarator(self, ctype, line):
        name = self.take()
        if not re.fullmatch(r"[A-Za-z_]\w*", name) or name in _BUILTIN or name in _QUALIFIERS:
            self.fail(f"cannot read a name in {ctype.spelling()} {name}")
        size = None
        if self.peek() == "[":
            self.take()
            size = ""
            while self.peek() != "]":
                size += self.take()
            self.take("]")
            if self.peek() == "[":
                self.fail(f"{name}: arrays of arrays are not read")
        return Declarator(ctype, name, size, line)

    def ctype(self):
        """A type: qualifiers, a base name (several words for the built-in ones, `::` between
        scopes, template arguments), then `*`, `&` and trailing `const`."""
        ctype = CType("")
        while self.peek() in _QUALIFIERS:
            ctype.const |= self.take() == "const"
        words = []
        if self.peek() in _BUILTIN:
            while self.peek() in _BUILTIN:
                words.append(self.take())
            ctype.base = " ".join(words)
        else:
            if self.peek() in ("typename", "struct", "class", "enum"):
                self.take()
            base = ""
            if self.peek() == "::":
                base += self.take()
            base += self.take()
            while self.peek() == "::":
                base += self.take() + self.take()
            if not re.fullmatch(r"(::)?[A-Za-z_]\w*(::[A-Za-z_]\w*)*", base):
                self.fail(f"cannot read a type at {base!r}")
            ctype.base = base
            if self.peek() == "<":
                self.take()
                while self.peek() != ">":
                    ctype.args.append(self.ctype())
                    if self.peek() == ",":
                        self.take()
                    elif self.peek() != ">":
                        self.fail(f"cannot read a template argument of {base} at {self.peek()!r}")
                self.take(">")
        while self.peek() in ("const", "volatile", "*", "&", "&&"):
            t = self.take()
            if t == "const":
                ctype.const = True
            elif t == "*":
                if ctype.pointer:
                    self.fail(f"a pointer to a pointer ({ctype.spelling()}*) is not read")
                ctype.pointer = True
            elif t in ("&", "&&"):
                if t == "&&" or self.peek() == "&":
                    self.fail("an rvalue reference is not read")
                ctype.reference = True
        return ctype


# ---- the service's shape --------------------------------------------------------------------

@dataclass
class Type:
    """What crosses the interface, as the panel represents it."""
    kind: str                      # Bool Integer Float Text Record Vector Array
    cpp: str                       # its C++ spelling, for the table
    element: Optional["Type"] = None
    record: Optional["Record"] = None
    size: int = 0                  # an array's elements, a fixed text's bytes

    def key(self):
        return (self.kind, self.cpp, self.size)

    def plain(self):
        """The type as the memory's pairs compare it: no namespaces."""
        return re.sub(r"\b\w+::", "", self.cpp)


@dataclass
class Record:
    name: str
    cpp: str
    fields: List = field(default_factory=list)     # (name, Type)


@dataclass
class Parameter:
    name: str
    type: Type
    out: bool
    wrap: str                      # how the adaptor hands it on: "", "out", "inArray", "outArray"
    declared: str                  # its declaration, for the override
    size: str = ""                 # the array size as declared


@dataclass
class Operation:
    name: str
    result: Optional[Type]
    result_cpp: str
    params: List[Parameter]
    const: bool
    line: int
    getter: Optional[int] = None   # for a setter the memory keeps: its getter's index

    def ins(self):
        return [p for p in self.params if not p.out]

    def outs(self):
        return [p for p in self.params if p.out]


@dataclass
class Interface:
    name: str
    cpp: str
    header: str
    operations: List[Operation]
    accessor: str = ""


@dataclass
class Service:
    interfaces: List[Interface]
    records: List[Record]
    manager: str                   # its C++ name
    manager_header: str
    accessors: List                # (accessor name, Interface)
    headers: List[str]
    namespaces: List[str]


_INTEGERS = {
    "char", "signed char", "unsigned char", "short", "short int", "unsigned short",
    "unsigned short int", "int", "signed", "signed int", "unsigned", "unsigned int", "long",
    "long int", "unsigned long", "unsigned long int", "long long", "long long int",
    "unsigned long long", "unsigned long long int", "int8_t", "int16_t", "int32_t", "int64_t",
    "uint8_t", "uint16_t", "uint32_t", "uint64_t", "size_t",
}
_TEXTS = {"String16", "std::string"}


class Shaper:
    """Turns what the headers declare into the service's shape."""

    def __init__(self, parsers):
        self.parsers = parsers
        self.constants = {}
        self.records = {}          # name: Record
        self.enums = {}            # name: Scope
        self.classes = {}          # name: Scope
        self.structs = {}
        self.types = {}
        for p in parsers:
            self.constants.update(p.constants)
            for s in p.scopes:
                table = {"enum": self.enums, "struct": self.structs, "class": self.classes}[s.kind]
                if s.name in table:
                    raise Unreadable(f"{s.path}:{s.line}: {s.name} is declared twice")
                table[s.name] = s

    def intern(self, t):
        return self.types.setdefault(t.key(), t)

    def unqualified(self, base):
        return base.rsplit("::", 1)[-1]

    def size(self, text, where):
        if re.fullmatch(r"\d+", text or ""):
            return int(text)
        name = self.unqualified(text or "")
        if name in self.constants:
            return self.constants[name]
        raise Unreadable(f"{where}: the array size {text!r} is neither a number nor a constant "
                         "of the headers")

    def value_type(self, ctype, where):
        """The type of a value (no reference, no pointer)."""
        base, name = ctype.base, self.unqualified(ctype.base)
        if ctype.args and name != "vector":
            raise Unreadable(f"{where}: {ctype.spelling()}: a type no profile can hold "
                             "(a vector is an array; nothing else with template arguments is read)")
        if base == "bool":
            return self.intern(Type("Bool", "bool"))
        if base in ("float", "double"):
            return self.intern(Type("Float", base))
        if base in _INTEGERS or base.replace("std::", "") in _INTEGERS:
            return self.intern(Type("Integer", base))
        if name in self.enums:
            return self.intern(Type("Integer", name))
        if name == "String16" or base == "std::string":
            return self.intern(Type("Text", name if name == "String16" else base))
        if name == "vector" and base in ("std::vector", "vector"):
            if len(ctype.args) != 1 or ctype.args[0].pointer or ctype.args[0].reference:
                raise Unreadable(f"{where}: {ctype.spelling()}: a vector of plain values is read")
            element = self.value_type(ctype.args[0], where)
            return self.intern(Type("Vector", ctype.value(), element))
        if name in self.structs:
            return self.intern(Type("Record", name, record=self.record(name)))
        raise Unreadable(f"{where}: {ctype.spelling()}: a type the headers do not declare as a "
                         "record or an enumeration, and no built-in one")

    def record(self, name):
        if name in self.records:
            if self.records[name] is None:
                raise Unreadable(f"{name} holds itself")
            return self.records[name]
        scope = self.structs[name]
        self.records[name] = None
        record = Record(name, scope.namespace + name)
        for f in scope.fields:
            where = f"{scope.path}:{f.line}: {name}.{f.name}"
            if f.ctype.pointer or f.ctype.reference:
                raise Unreadable(f"{where}: a pointer or reference in a record is not read")
            if f.size is not None:
                n = self.size(f.size, where)
                if f.ctype.base == "char":
                    t = self.intern(Type("Text", f"char[{n}]", size=n))
                else:
                    t = self.intern(Type("Array", f"{f.ctype.base}[{n}]",
                                         self.value_type(f.ctype, where), size=n))
            else:
                t = self.value_type(f.ctype, where)
            record.fields.append((f.name, t))
        self.records[name] = record
        return record

    def parameter(self, d, where):
        c = d.ctype
        where = f"{where}, {d.name}"
        declared = f"{c.spelling()} {d.name}" + (f"[{d.size}]" if d.size is not None else "")
        if d.size is not None or (c.pointer and not (c.base == "char" and c.const)):
            if d.size is None:
                raise Unreadable(f"{where}: {c.spelling()}: a pointer without its array size; "
                                 f"declare it as {c.base} {d.name}[N]")
            if c.reference or (c.pointer and d.size is not None):
                raise Unreadable(f"{where}: an array of pointers is not read")
            n = self.size(d.size, where)
            element = CType(c.base, c.args)
            t = self.intern(Type("Array", f"{c.base}[{n}]", self.value_type(element, where),
                                 size=n))
            return Parameter(d.name, t, not c.const, "inArray" if c.const else "outArray",
                             declared, d.size)
        if c.pointer:                  # const char*: a text
            return Parameter(d.name, self.intern(Type("Text", "const char*")), False, "",
                             declared)
        if c.reference and not c.const:
            return Parameter(d.name, self.value_type(c, where), True, "out", declared)
        return Parameter(d.name, self.value_type(c, where), False, "", declared)

    def operation(self, scope, f):
        where = f"{scope.path}:{f.line}: {scope.name}::{f.name}"
        if f.static or not f.virtual:
            raise Unreadable(f"{where}: not virtual: an adaptor cannot stand in for it")
        r = f.result
        if r.reference or (r.pointer and not (r.base == "char" and r.const)):
            raise Unreadable(f"{where}: {r.spelling()}: an answer by reference or pointer is "
                             "not read: nobody would own what it points to")
        if r.pointer:
            raise Unreadable(f"{where}: const char*: a text answered by pointer is not read: "
                             "nobody would own it")
        result = None if r.base == "void" else self.value_type(r, where)
        params = [self.parameter(d, where) for d in f.params]
        names = [p.name for p in params]
        if len(set(names)) != len(names):
            raise Unreadable(f"{where}: two parameters of one name")
        return Operation(f.name, result, r.spelling(), params, f.const, f.line)

    def shape(self):
        """The manager is the class whose operations each hand out an interface; an interface is
        a class it hands out, or any other class with virtual operations."""
        classes = sorted(self.classes.values(), key=lambda s: (s.path, s.line))
        managers = [s for s in classes if s.functions and all(
            f.virtual and f.result.pointer and not f.params and
            self.unqualified(f.result.base) in self.classes for f in s.functions)]
        if len(managers) > 1:
            raise Unreadable(f"{managers[1].path}:{managers[1].line}: a second manager, beside "
                             f"{managers[0].name}")
        manager = managers[0] if managers else None
        handed = {self.unqualified(f.result.base) for f in manager.functions} if manager else set()
        interfaces = []
        for scope in classes:
            if scope is manager or (scope.name not in handed and
                                    not any(f.virtual for f in scope.functions)):
                continue            # the library's entry point: written by hand
            ops = [self.operation(scope, f) for f in scope.functions]
            seen = set()
            for op in ops:
                if op.name in seen:
                    raise Unreadable(f"{scope.path}:{op.line}: {scope.name}::{op.name} is "
                                     "overloaded: a profile names an operation by its name alone")
                seen.add(op.name)
            pair(ops)
            interfaces.append(Interface(scope.name, scope.namespace + scope.name,
                                        os.path.basename(scope.path), ops))
        if manager is None:
            raise Unreadable("no manager: a class whose operations each hand out an interface")
        by_name = {i.name: i for i in interfaces}
        accessors = []
        for f in manager.functions:
            target = by_name[self.unqualified(f.result.base)]
            if target.accessor:
                raise Unreadable(f"{manager.path}:{f.line}: {f.name}: {target.name} has an "
                                 f"accessor already, {target.accessor}")
            target.accessor = f.name
            accessors.append((f.name, target))
        namespaces = sorted({s.namespace.rstrip(":") for p in self.parsers for s in p.scopes
                             if s.namespace})
        return Service(interfaces, list(self.records.values()),
                       manager.namespace + manager.name, os.path.basename(manager.path),
                       accessors, sorted(os.path.basename(p.path) for p in self.parsers),
                       namespaces)


def pair(ops):
    """The setters the memory keeps, each with its getter: setX or SetX with getX, GetX, isX or
    IsX, when the getter answers the type of the setter's last in-argument and takes its other
    in-arguments, in order and of the same types. Out-parameters pair with nothing."""
    index = {op.name: i for i, op in enumerate(ops)}
    for op in ops:
        stem = re.match(r"[sS]et(.+)", op.name)
        ins = op.ins()
        if not stem or not ins or op.outs():
            continue
        for prefix in ("get", "Get", "is", "Is"):
            i = index.get(prefix + stem.group(1))
            if i is None:
                continue
            getter = ops[i]
            if getter.outs() or getter.result is None:
                continue
            if getter.result.plain() == ins[-1].type.plain() and \
                    [p.type.plain() for p in getter.ins()] == [p.type.plain() for p in ins[:-1]]:
                op.getter = i
                break


def read_service(paths):
    parsers = []
    for path in sorted(paths):
        with open(path, encoding="utf-8") as f:
            parsers.append(Parser(path, f.read()).read())
    return Shaper(parsers).shape()


# ---- writing --------------------------------------------------------------------------------

def c_string(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def write_shape(service):
    """Shape.cpp: the table, as constant data."""
    out = ["// Generated from the service's declarations by adaptor/generate.py: do not edit.",
           "", '#include "adaptor/Shape.h"', "", "namespace adaptor {", "", "namespace {", ""]
    names = {}

    def type_name(t):
        if t.key() in names:
            return names[t.key()]
        element = type_name(t.element) if t.element else None
        record = record_name(t.record) if t.record else None
        name = f"t{len(names)}"
        names[t.key()] = name
        out.append(f"const Type {name}{{Kind::{t.kind}, {c_string(t.cpp)}, "
                   f"{'&' + element if element else 'nullptr'}, "
                   f"{'&' + record if record else 'nullptr'}, {t.size}}};")
        return name

    records = {}

    def record_name(r):
        if r.name in records:
            return records[r.name]
        fields = [(n, type_name(t)) for n, t in r.fields]
        name = f"r{r.name}"
        out.append(f"const Field {name}Fields[] = {{")
        out.extend(f"    {{{c_string(n)}, {t}}}," for n, t in fields)
        out.append("};")
        out.append(f"const Record {name}{{{c_string(r.name)}, {name}Fields, {len(fields)}}};")
        records[r.name] = name
        return name

    for r in service.records:
        record_name(r)
    for iface in service.interfaces:
        for op in iface.operations:     # every type first: the lists below refer to them
            for t in [op.result] + [p.type for p in op.params]:
                if t:
                    type_name(t)
    for iface in service.interfaces:
        for op in iface.operations:
            if op.params:
                params = [(p.name, type_name(p.type), p.out) for p in op.params]
                out.append(f"const Parameter p{iface.name}_{op.name}[] = {{")
                out.extend(f"    {{{c_string(n)}, {t}, {'true' if o else 'false'}}},"
                           for n, t, o in params)
                out.append("};")
        out.append(f"const Operation o{iface.name}[] = {{")
        for op in iface.operations:
            result = "&" + type_name(op.result) if op.result else "nullptr"
            params = f"p{iface.name}_{op.name}" if op.params else "nullptr"
            getter = -1 if op.getter is None else op.getter
            out.append(f"    {{{c_string(op.name)}, {result}, {params}, {len(op.params)}, "
                       f"{len(op.ins())}, {getter}}},")
        out.append("};")
    out.append("const Interface kInterfaces[] = {")
    for iface in service.interfaces:
        out.append(f"    {{{c_string(iface.name)}, {c_string(iface.accessor)}, o{iface.name}, "
                   f"{len(iface.operations)}}},")
    out.append("};")
    out.append("const Record* const kRecords[] = {")
    out.extend(f"    &{records[r.name]}," for r in service.records)
    out += ["};", "", "}  // namespace", "",
            f"const Service kService{{kInterfaces, {len(service.interfaces)}, kRecords, "
            f"{len(service.records)}}};", "", "}  // namespace adaptor", ""]
    return "\n".join(out)


def write_adaptors(service, include_dir):
    """Adaptors.cpp: the records' fields, one adaptor per interface, the manager. The adaptors
    stand in a namespace of their own that sees the service's, so that the types are spelled as
    the headers spell them; the mechanism is named from there as adaptor::."""
    out = ["// Generated from the service's declarations by adaptor/generate.py: do not edit.",
           "", '#include "adaptor/Adaptor.h"']
    out += [f'#include "{include_dir}/{h}"' for h in service.headers]
    out.append("")
    for r in service.records:
        out.append(f"template <>\nstruct adaptor::Fields<{r.cpp}> {{")
        out.append("    template <typename R, typename F>\n    static void each(R& r, F&& f) {")
        out.extend(f"        f({c_string(n)}, r.{n});" for n, _ in r.fields)
        out.append("    }\n};\n")
    out += ["namespace adaptor_generated {", "", "namespace {", ""]
    out += [f"using namespace {ns};" for ns in service.namespaces]
    out += ["using adaptor::out;", "using adaptor::inArray;", "using adaptor::outArray;", ""]
    for k, iface in enumerate(service.interfaces):
        out.append(f"class {iface.name}Adaptor final : public {iface.cpp}, "
                   f"adaptor::Adaptor<{iface.cpp}> {{")
        out.append("public:")
        out.append(f"    {iface.name}Adaptor(adaptor::Backend& backend, {iface.cpp}* next)")
        out.append(f"        : Adaptor(backend, adaptor::kService.interfaces[{k}]) {{")
        out.append("        follow(next);")
        out.append("    }")
        for i, op in enumerate(iface.operations):
            declared = ", ".join(p.declared for p in op.params)
            const = " const" if op.const else ""
            passed = ", ".join(p.name for p in op.params)
            body = f"next.{op.name}({passed})"
            body = f"{{ return {body}; }}" if op.result else f"{{ {body}; }}"
            wrapped = ""
            for p in op.params:
                if p.wrap == "out":
                    wrapped += f", out({p.name})"
                elif p.wrap:
                    wrapped += f", {p.wrap}({p.name}, {p.type.size})"
                else:
                    wrapped += f", {p.name}"
            result = op.result_cpp if op.result else "void"
            out.append(f"    {result} {op.name}({declared}){const} override {{")
            out.append(f"        return adapt<{result}>({i}, [&]({iface.cpp}& next) {body}"
                       f"{wrapped});")
            out.append("    }")
        out.append("};\n")
    out.append(f"class Manager final : public {service.manager} {{")
    out.append("public:")
    out.append(f"    Manager(adaptor::Backend& backend, {service.manager}* next) : mBackend(backend) {{")
    out.append("        mNext = next;")
    out.append("    }")
    for name, iface in service.accessors:
        k = service.interfaces.index(iface)
        out.append(f"    {iface.cpp}* {name}() override {{")
        out.append(f"        return adaptor::control<{iface.name}Adaptor>(mBackend, mNext.get(), "
                   f"adaptor::kService.interfaces[{k}], &{service.manager}::{name});")
        out.append("    }")
    out += ["", "private:", "    adaptor::Backend& mBackend;",
            f"    android::sp<{service.manager}> mNext;", "};", "", "}  // namespace", "",
            "}  // namespace adaptor_generated", "",
            f"{service.manager}* adaptor::manager(Backend& backend, {service.manager}* next) {{",
            "    return new adaptor_generated::Manager(backend, next);", "}", ""]
    return "\n".join(out)


# ---- a profile built in ---------------------------------------------------------------------

def check_profile(service, path, profile):
    """The names of a profile against the service's, as the panel checks a user's; a mistake
    here would leave an operation neutral in silence, so it fails the build."""
    by_name = {i.name: i for i in service.interfaces}
    if not isinstance(profile, dict):
        raise Unreadable(f"{path}: expected a JSON object")
    for iface, ops in profile.items():
        if iface not in by_name:
            raise Unreadable(f"{path}: {iface}: no such interface")
        names = {op.name: op for op in by_name[iface].operations}
        for key in ops:
            name = key.split("(", 1)[0]
            if name not in names:
                raise Unreadable(f"{path}: {iface}.{key}: no such operation")


def unique_object(pairs):
    keys = [k for k, _ in pairs]
    duplicates = {k for k in keys if keys.count(k) > 1}
    if duplicates:
        raise Unreadable(f"a key twice in one object: {sorted(duplicates)[0]}")
    return dict(pairs)


def write_builtin(service, path):
    with open(path, encoding="utf-8") as f:
        try:
            profile = json.load(f, object_pairs_hook=unique_object)
        except ValueError as e:
            raise Unreadable(f"{path}: not valid JSON: {e}")
    check_profile(service, path, profile)
    out = ["// Generated by adaptor/generate.py from the built-in profile: do not edit.", "",
           "#include <cstddef>", "", "namespace sim {", "",
           "// The built-in profile, one JSON object of operations per interface.",
           "extern const char* const kBuiltIn[][2];", "extern const size_t kBuiltInCount;", "",
           "const char* const kBuiltIn[][2] = {"]
    for iface, ops in profile.items():
        text = json.dumps(ops, ensure_ascii=False, separators=(", ", ": "))
        out.append(f"    {{{c_string(iface)}, R\"json({text})json\"}},")
    out += ["};", f"const size_t kBuiltInCount = {len(profile)};", "", "}  // namespace sim", ""]
    return "\n".join(out)


def write(path, text):
    with open(path, "w", encoding="utf-8") as f:
        f.write(text)


def main(argv):
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--out", help="directory for Shape.cpp and Adaptors.cpp")
    parser.add_argument("--profile", help="a profile to build in")
    parser.add_argument("--out-file", help="where the built-in profile goes")
    parser.add_argument("headers", nargs="+")
    args = parser.parse_args(argv)
    try:
        service = read_service(args.headers)
        include_dir = os.path.basename(os.path.dirname(os.path.abspath(args.headers[0])))
        if args.profile:
            os.makedirs(os.path.dirname(os.path.abspath(args.out_file)), exist_ok=True)
            write(args.out_file, write_builtin(service, args.profile))
        if args.out:
            os.makedirs(args.out, exist_ok=True)
            write(os.path.join(args.out, "Shape.cpp"), write_shape(service))
            write(os.path.join(args.out, "Adaptors.cpp"),
                             write_adaptors(service, include_dir))
    except Unreadable as e:
        print(f"generate.py: {e}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
