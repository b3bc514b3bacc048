#!/usr/bin/env python3
"""What tools/tables refuses, and what it writes."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
TOOLS = PROJECT / "tools" / "tables"
sys.dont_write_bytecode = True
sys.path.insert(0, str(TOOLS))

import forms  # noqa: E402
import rows  # noqa: E402

SMALL = """\
IHostControl 0 void Reserved0()
IHostControl 1 std::uint8_t SetKind(std::uint32_t, IHostControl *)
IHostControl 2 void Fill(std::vector<IHostControl *> *, void *)
""".splitlines()


def small():
    return rows.parse(SMALL, "small.txt")


class Refused(unittest.TestCase):
    def expect(self, message, *lines):
        with self.assertRaises(rows.BrokenTables) as broken:
            rows.parse(list(lines), "t.txt")
        self.assertEqual(str(broken.exception), message)

    def test_no_row(self):
        self.expect("t.txt:1: there is no row")

    def test_another_form(self):
        for text in ("", "# IA", "IA 0 void", "IA x void Do()", "A 0 void Do()", "IA 0 Do()"):
            with self.subTest(text):
                self.expect("t.txt:2: no row of the form INTERFACE POSITION RESULT NAME(ARGUMENTS)",
                            "IA 0 void Do()", text)

    def test_a_gap(self):
        self.expect("t.txt:2: IA has position 2 where 1 follows", "IA 0 void Do()", "IA 2 void Undo()")

    def test_a_table_that_begins_late(self):
        self.expect("t.txt:1: IA has position 1 where 0 follows", "IA 1 void Do()")

    def test_a_position_twice(self):
        self.expect("t.txt:2: IA has position 0 where 1 follows", "IA 0 void Do()", "IA 0 void Undo()")

    def test_rows_apart(self):
        self.expect("t.txt:3: the rows of IA do not stand together",
                    "IA 0 void Do()", "IB 0 void Do()", "IA 1 void Undo()")

    def test_an_overload(self):
        self.expect("t.txt:2: IA has two operations Do; compilers place overloads differently",
                    "IA 0 void Do()", "IA 1 void Do(float)")

    def test_a_reserved_position_in_use(self):
        for row in ("IA 1 void Reserved2()", "IA 1 float Reserved1()", "IA 1 void Reserved1(float)"):
            with self.subTest(row):
                self.expect("t.txt:2: a reserved position is void Reserved1()", "IA 0 void Do()", row)

    def test_a_result_that_cannot_cross(self):
        for result in ("bool", "IB *", "std::string", "std::vector<IA *> *"):
            with self.subTest(result):
                self.expect("t.txt:1: no interface may return " + rows.written(result), "IA 0 %s Do()" % result)

    def test_an_argument_that_cannot_cross(self):
        for argument in ("bool", "void", "IB *", "const float &", "std::vector<IB *> *"):
            with self.subTest(argument):
                self.expect("t.txt:2: no interface may take " + rows.written(argument),
                            "IA 0 void Do()", "IA 1 void Undo(float, %s)" % argument)

    def test_a_template_without_a_name(self):
        self.expect("t.txt:1: IA<IB> has no name of its own in tools/tables/rows.py", "IA<IB> 0 void Do()")


class Read(unittest.TestCase):
    def test_every_row_is_kept(self):
        path = PROJECT / "host" / "tables.txt"
        interfaces = rows.read(path)
        again = ["%s %d" % (interface.table, operation.position)
                 for interface in interfaces for operation in interface.operations]
        self.assertEqual(again, [" ".join(line.split()[:2]) for line in path.read_text().splitlines()])

    def test_types_are_written_as_in_the_project(self):
        fill = small()[0].operations[2]
        self.assertEqual(fill.arguments, ("std::vector<IHostControl*>*", "void*"))

    def test_reserved_positions_are_not_used(self):
        self.assertEqual([operation.position for operation in small()[0].used], [1, 2])


class Written(unittest.TestCase):
    def expect_lines(self, form, *lines):
        written = forms.FORMS[form](small()).splitlines()
        for line in lines:
            self.assertIn(line, [each.strip() for each in written])

    def test_positions(self):
        self.expect_lines("Positions", "visitor.Reserved(0);",
                          'visitor.template Used<std::uint8_t, std::uint32_t, IHostControl*>(1, "SetKind");',
                          'visitor.template Used<void, std::vector<IHostControl*>*, void*>(2, "Fill");')

    def test_operations(self):
        self.expect_lines("Operations", "using Type = Operations<&IHostControl::SetKind, &IHostControl::Fill>;")

    def test_signatures(self):
        self.expect_lines("Signatures", '{1, "SetKind", "cup"},', '{2, "Fill", "vaa"},',
                          '{"IHostControl", HOST_CONTROL, 2},')

    def test_forwarding(self):
        self.expect_lines(
            "Forwarding", "std::uint8_t SetKind(std::uint32_t argument1, IHostControl* argument2) override",
            'return this->Pass({"IHostControl", 1, "SetKind"}, &IHostControl::SetKind, argument1, argument2);')

    def test_signatures_leave_the_library_out(self):
        self.assertNotIn("IQuorvane", forms.signatures(rows.parse(["IQuorvane 0 void Do()"] + SMALL, "t.txt")))

    def test_no_line_is_too_long(self):
        for form in forms.FORMS.values():
            for line in form(rows.read(PROJECT / "host" / "tables.txt")).splitlines():
                self.assertLessEqual(len(line), forms.WIDTH, line)


class Program(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tables = Path(folder.name, "tables.txt")
        self.header = Path(folder.name, "Written.h")

    def write(self, form, lines, **environment):
        self.tables.write_text("\n".join(lines))
        return subprocess.run([sys.executable, "-B", TOOLS / "write.py", self.tables, form, self.header],
                              env={**os.environ, **environment}, stderr=subprocess.PIPE, text=True, check=False)

    def test_writes_the_same_each_time(self):
        lines = (PROJECT / "host" / "tables.txt").read_text().splitlines()
        for form, text in forms.FORMS.items():
            written = set()
            for seed in ("0", "1", "2"):
                self.assertEqual(self.write(form, lines, PYTHONHASHSEED=seed).returncode, 0)
                written.add(self.header.read_bytes())
            self.assertEqual(written, {text(rows.parse(lines, "t.txt")).encode()})

    def test_writes_nothing_from_broken_tables(self):
        ended = self.write("Positions", SMALL[:1] + SMALL[2:])
        self.assertEqual(ended.returncode, 1)
        self.assertEqual(ended.stderr, "%s:2: IHostControl has position 2 where 1 follows\n" % self.tables)
        self.assertFalse(self.header.exists())


if __name__ == "__main__":
    unittest.main()
