"""What scripts/mutate makes of a file, and what it chooses. Nothing is built.

    test_mutate.py SOURCE
"""
import importlib.machinery
import importlib.util
import pathlib
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(sys.argv.pop())
loader = importlib.machinery.SourceFileLoader("mutate", str(SOURCE / "scripts" / "mutate"))
mutate = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutate", loader))
loader.exec_module(mutate)

SAMPLE = """\
#include "some/file.h" // 1 == 2
constexpr Row rows[] = {
    {"KEY_A", "Text"},
    {"KEY_B", "%1"},
};
int f(int a)
{
    first(a);
    second(true);
    return !a || a < 3 ? 0 : a; // not 4
}
"""


def mutants(kind):
    return [(each["line"], each["before"], each["after"])
            for each in mutate.mutants_of_file("a.cpp", SAMPLE) if each["kind"] == kind]


class MutateTest(unittest.TestCase):
    def test_a_comparison_becomes_its_neighbour(self):
        line = "    return !a || a < 3 ? 0 : a; // not 4"
        changed = {line.replace("||", "&&"), line.replace("<", "<="), line.replace("!", "")}
        self.assertEqual({after[0] for _, _, after in mutants("comparison")}, changed)

    def test_a_constant_becomes_another_and_no_comment_changes(self):
        changed = [(number, after[0].strip()) for number, _, after in mutants("constant")]
        self.assertEqual(changed, [(9, "second(false);"), (10, "return !a || a < 4 ? 0 : a; // not 4"),
                                   (10, "return !a || a < 2 ? 0 : a; // not 4"),
                                   (10, "return !a || a < 3 ? 1 : a; // not 4")])

    def test_a_row_is_dropped_or_changes_places_with_the_next(self):
        first, second = '    {"KEY_A", "Text"},', '    {"KEY_B", "%1"},'
        self.assertEqual(mutants("row"), [(3, [first], []), (3, [first, second], [second, first]),
                                          (4, [second], [])])

    def test_calls_are_dropped_and_neighbours_are_swapped(self):
        first, second = "    first(a);", "    second(true);"
        self.assertEqual(mutants("dropped call"), [(8, [first], ["    ;"]), (9, [second], ["    ;"])])
        self.assertEqual(mutants("swapped calls"), [(8, [first, second], [second, first])])

    def test_every_text_but_a_file_name_is_changed(self):
        texts = [after[0].strip() for _, _, after in mutants("text")]
        self.assertEqual(texts, ['{"xEY_A", "Text"},', '{"KEY_A", "xext"},', '{"xEY_B", "%1"},',
                                 '{"KEY_B", "%1x"},'])

    def test_the_same_seed_chooses_the_same(self):
        with tempfile.TemporaryDirectory() as name:
            tree = pathlib.Path(name)
            for file in ("utility/a.cpp", "utility/b.cpp", "tests/c.cpp"):
                (tree / file).parent.mkdir(exist_ok=True)
                (tree / file).write_text(SAMPLE)
            chosen = mutate.choose(tree, ["utility"], 10, 7)
            self.assertEqual(len(chosen), 10)
            self.assertEqual({each["kind"] for each in chosen},
                             {"comparison", "constant", "row", "dropped call", "swapped calls", "text"})
            self.assertEqual(chosen, mutate.choose(tree, ["utility"], 10, 7))
            self.assertNotEqual(chosen, mutate.choose(tree, ["utility"], 10, 8))
            self.assertEqual({each["file"] for each in mutate.choose(tree, ["utility/b.cpp"], 99, 7)},
                             {"utility/b.cpp"})
            self.assertEqual(mutate.choose(tree, ["tests"], 10, 7), [])


unittest.main()
