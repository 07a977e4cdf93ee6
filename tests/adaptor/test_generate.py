"""The generator's reader and writers, a small header per rule (tests/adaptor/*.h).

    python3 tests/adaptor/test_generate.py [--compile "C++ COMPILER AND FLAGS"]

With --compile, the adaptors written for the headers that are read must compile against them and
adaptor/Adaptor.h: every override matches its declaration, or the compiler says which does not.
"""

import contextlib
import io
import os
import shlex
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "adaptor"))
import generate  # noqa: E402

COMPILE = []


def read(name):
    return generate.read_service([os.path.join(HERE, name)])


def operations(service, interface):
    return {op.name: op for i in service.interfaces if i.name == interface for op in i.operations}


def spelled(op):
    """An operation as the table has it: parameters with kind and direction, the result."""
    params = ", ".join(f"{'out ' if p.out else ''}{p.type.kind}:{p.type.cpp} {p.name}"
                       for p in op.params)
    return f"{op.result.cpp if op.result else 'void'} {op.name}({params})"


class Reading(unittest.TestCase):
    def test_comments_of_both_kinds_hide_what_they_hold(self):
        ops = operations(read("comments.h"), "ICommented")
        self.assertEqual([spelled(op) for op in ops.values()],
                         ["int getLevel()", "bool setLevel(Integer:int level)"])

    def test_a_declaration_over_lines_with_an_out_parameter_and_a_vector(self):
        op = operations(read("multiline.h"), "IMeter")["getReadings"]
        self.assertEqual(spelled(op), "int getReadings(Text:String16 group, "
                                      "out Vector:std::vector<Reading> readings)")
        self.assertEqual(op.params[1].declared, "std::vector<Reading>& readings")
        self.assertEqual([(n, t.cpp) for n, t in op.params[1].type.element.record.fields],
                         [("channel", "int"), ("label", "char[16]")])

    def test_template_arguments_hold_their_commas_and_angle_brackets(self):
        ops = operations(read("templates.h"), "IGrid")
        self.assertEqual(spelled(ops["getGrid"]),
                         "std::vector<std::vector<int>> getGrid(Integer:int rows, Integer:int columns)")
        self.assertEqual(ops["getGrid"].result.element.element.cpp, "int")
        self.assertEqual(spelled(ops["setLabels"]),
                         "void setLabels(Vector:std::vector<std::string> labels)")

    def test_arrays_take_their_size_from_the_parameter(self):
        ops = operations(read("arrays.h"), "ISampler")
        self.assertEqual(spelled(ops["getSamples"]), "int getSamples(out Array:int[8] samples)")
        self.assertEqual(spelled(ops["setSamples"]),
                         "bool setSamples(Array:int[4] samples, Integer:int count)")
        self.assertEqual(spelled(ops["setName"]), "bool setName(Text:const char* name)")
        self.assertEqual([p.wrap for p in ops["getSamples"].params + ops["setSamples"].params],
                         ["outArray", "inArray", ""])

    def test_records_enumerations_and_the_manager(self):
        service = read("records.h")
        ops = operations(service, "IAreas")
        self.assertEqual(spelled(ops["getCorner"]), "void getCorner(Integer:int id, out Record:Point corner)")
        self.assertEqual(ops["getMode"].result.kind, "Integer")
        area = ops["getArea"].result.record
        self.assertEqual([(n, t.kind, t.size) for n, t in area.fields],
                         [("name", "Text", 32), ("corner", "Record", 0), ("note", "Text", 0),
                          ("shown", "Bool", 0)])
        self.assertEqual([(a, i.name) for a, i in service.accessors], [("getAreas", "IAreas")])

    def test_setters_pair_with_getters_whose_types_line_up(self):
        ops = list(operations(read("pairs.h"), "IPaired").values())
        pairs = {op.name: ops[op.getter].name for op in ops if op.getter is not None}
        self.assertEqual(pairs, {"setLevel": "getLevel", "SetGain": "GetGain", "setMuted": "isMuted"})


class Refusing(unittest.TestCase):
    """What no adaptor can pass faithfully is named with its file and line, and nothing is written."""

    def refused(self, name, line, *words):
        with self.assertRaises(generate.Unreadable) as caught:
            read(name)
        self.assertIn(f"{name}:{line}: ", str(caught.exception))
        for word in words:
            self.assertIn(word, str(caught.exception))

    def test_a_type_no_profile_can_hold(self):
        self.refused("refused-map.h", 11, "std::map<std::string, int>")

    def test_a_pointer_without_its_size(self):
        self.refused("refused-pointer.h", 8, "getRaw", "raw", "without its array size")

    def test_an_overloaded_operation(self):
        self.refused("refused-overload.h", 9, "setLevel", "overloaded")

    def test_a_type_the_headers_do_not_declare(self):
        self.refused("refused-unknown.h", 8, "Colour")

    def test_a_comment_that_never_ends(self):
        self.refused("refused-comment.h", 3, "never ends")

    def test_the_generator_writes_nothing_and_fails(self):
        with tempfile.TemporaryDirectory() as out:
            with contextlib.redirect_stderr(io.StringIO()):
                status = generate.main(["--out", out, os.path.join(HERE, "refused-pointer.h")])
            self.assertEqual((status, os.listdir(out)), (1, []))


class Compiling(unittest.TestCase):
    def test_the_adaptors_compile_against_their_declarations(self):
        if not COMPILE:
            self.skipTest("no compiler given (--compile)")
        for name in ("multiline.h", "arrays.h", "records.h", "templates.h", "pairs.h"):
            with self.subTest(name), tempfile.TemporaryDirectory() as out:
                self.assertEqual(generate.main(["--out", out, os.path.join(HERE, name)]), 0)
                for written in ("Adaptors.cpp", "Shape.cpp"):
                    run = subprocess.run(COMPILE + ["-fsyntax-only", os.path.join(out, written)],
                                         capture_output=True, text=True)
                    self.assertEqual(run.returncode, 0, run.stderr)


if __name__ == "__main__":
    if "--compile" in sys.argv:
        at = sys.argv.index("--compile")
        COMPILE += shlex.split(sys.argv[at + 1])
        del sys.argv[at:at + 2]
    unittest.main()
