"""Every sample of the pages is compiled or run, and every command is one that there is.

    test_docs.py SOURCE BUILD COMPILER MOC

Samples are fenced and say what they are: cpp, sh, tour, xml; usage, what a program's help says of itself; text, which is
shown and not for use. Commands within a line are those that begin with a program's name and have an argument.
"""
import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE, BUILD = (pathlib.Path(path) for path in sys.argv[1:3])
COMPILER, MOC = sys.argv[3:5]
PAGES = [SOURCE / "README.md", SOURCE / "CONTRIBUTING.md", *sorted((SOURCE / "docs").glob("*.md"))]
KINDS = {"cpp", "sh", "tour", "xml", "usage", "text"}
PROGRAMS = ("kavrecentcalls", "kavqcop", "kavcallrecorder", "kavmeter")

# How the n-th C++ sample of a page is a piece of a program: what stands before it and behind it.
FUNCTION = ("void sample() {", "}")
WRAPS = {
    ("handset.md", 1): FUNCTION,
    ("log.md", 1): ("void sample(const char *format, va_list arguments) {", "}"),
    ("message.md", 1): ("void sample(QObject *screen, uint32_t seconds) {", "}"),
    ("qcop.md", 1): ("struct Caller : QObject { void sample(QObject *screen); };\n"
                     "void Caller::sample(QObject *screen) {", "}"),
    ("qt.md", 1): ("", "};"),
    ("qt.md", 2): ("QStringList sample() { return QStringList()", ";}"),
    ("security.md", 1): ("void sample(QWidget *screen) {", "}"),
    ("toolkit.md", 1): None,  # a class of its own, which is run
}

# Commands that are looked at and not run, with the reason.
NOT_RUN = {
    "cmake --install build/release --prefix ~/.local": "installs into the user's home; the test of the installation does it",
    "cmake --install build/release --prefix build/installed": "the test of the installation does it elsewhere",
    "cmake -S examples -B build/examples -DCMAKE_PREFIX_PATH=$PWD/build/installed": "likewise",
    "cmake --build build/examples": "likewise",
    "LD_LIBRARY_PATH=build/examples kavrecentcalls": "likewise, and a window stays until it is closed",
}


def samples():
    """Page, number among those of its kind, kind, text."""
    for page in PAGES:
        numbers = {}
        for kind, text in re.findall(r"^```(.*)\n((?:.*\n)*?)```$", page.read_text(), re.M):
            numbers[kind] = numbers.get(kind, 0) + 1
            yield page, numbers[kind], kind, text


def of_kind(kind):
    return [(page, number, text) for page, number, found, text in samples() if found == kind]


def environment(scratch, **more):
    kept = {name: os.environ[name] for name in ("PATH", "CCACHE_DIR") if name in os.environ}
    return {**kept, "HOME": str(scratch), "XDG_RUNTIME_DIR": str(scratch), "LC_ALL": "C.UTF-8", "TZ": "UTC",
            "QT_QPA_PLATFORM": "offscreen", "DBUS_SESSION_BUS_ADDRESS": "disabled:", **more}


class Case(unittest.TestCase):
    def setUp(self):
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="kav-docs-"))
        self.addCleanup(shutil.rmtree, self.scratch)

    def run_it(self, *command, **more):
        done = subprocess.run([str(word) for word in command], env=environment(self.scratch, **more), cwd=self.scratch,
                              capture_output=True, text=True, timeout=300)
        self.assertEqual(done.returncode, 0, f"{command}:\n{done.stdout}{done.stderr}")
        return done.stdout

    def help_of(self, program):
        return self.run_it(BUILD / "bin" / program, "--help")


class Layout(Case):
    def test_every_sample_says_what_it_is(self):
        for page, _, kind, text in samples():
            self.assertIn(kind, KINDS, f"{page.name}: {text[:60]}")
        for page in PAGES:
            outside = re.sub(r"^```.*\n(?:.*\n)*?```$", "", page.read_text(), flags=re.M)
            self.assertIsNone(re.search(r"\n\n {4}\S.*", outside), f"{page.name} has a sample without a fence")

    def test_every_page_that_is_linked_to_is_there(self):
        for page in PAGES:
            prose = re.sub(r"^```.*\n(?:.*\n)*?```$|`[^`\n]+`", "", page.read_text(), flags=re.M)
            for link in re.findall(r"\]\(([^)#:]+)\)", prose):
                self.assertTrue((page.parent / link).exists(), f"{page.name} leads to {link}")

    def test_every_test_that_a_table_names_is_there(self):
        named = 0
        for page in PAGES:
            for file, names in re.findall(r"^\|[^|\n]*\| (\S+/tst_\w+\.cpp) \| ([^|\n]*) \|$", page.read_text(), re.M):
                code = (SOURCE / "tests/platform/handset" / file).read_text()
                for name in re.findall(r"`(\w+)`", names):
                    named += 1
                    self.assertTrue(f"::{name}()\n" in code, f"{page.name}: {file} has no test {name}")
        self.assertGreater(named, 50)


class Code(Case):
    def flags(self):
        qt = self.run_it("pkg-config", "--cflags", "--libs", "Qt6Widgets").split()
        return ["-std=c++20", "-fPIC", "-O0", "-Wno-unused", f"-I{SOURCE}", f"-I{SOURCE}/platform",
                f"-I{SOURCE}/platform/handset", *qt]

    def test_samples_are_code_that_compiles(self):
        found = {(page.name, number) for page, number, _ in of_kind("cpp")}
        self.assertEqual(found, set(WRAPS), "a sample that no row of WRAPS makes a piece of a program, or none of a row")
        headers = ("callsetup/PHONE_ENG_Setup.h", "handset/Handset.h", "log/aplog.h", "message/PHONE_MsgClient.h",
                   "qt/QCopChannel.h", "qt/classname.h", "qt/translation.h", "security/SETUP_SECURITY_Util.h",
                   "telephony/util.h", "toolkit/ZMessageDlg.h")
        lines = [f'#include "{header}"' for header in headers] + ["#include <cstdarg>", "#include <cstdio>"]
        for page, number, text in of_kind("cpp"):
            if WRAPS[page.name, number] is None:
                continue
            before, behind = WRAPS[page.name, number]
            text = re.sub(r"^( *)\.\.\.", r"\1;", text, flags=re.M)
            if "QStringList()" in before:  # expressions, one a line
                text = "".join(f"<< {line}\n" for line in text.splitlines())
            lines += [f"namespace sample{len(lines)} {{", before, f'#line 1 "{page.name}, sample {number}"', text, behind, "}"]
        source = self.scratch / "samples.cpp"
        source.write_text("\n".join(lines) + "\n")
        self.run_it(COMPILER, "-fsyntax-only", *self.flags(), source)

    def test_the_screen_of_the_toolkits_page_shows_its_title_and_its_row(self):
        [text] = [text for page, _, text in of_kind("cpp") if page.name == "toolkit.md"]
        source = self.scratch / "view.cpp"
        source.write_text("""
            #include "qt/translation.h"
            #include "toolkit/ZKbMainWidget.h"
            #include "toolkit/ZListBox.h"
            #include "toolkit/ZSettingItem.h"
            #include "toolkit/ZSoftKey.h"
            #include <QtWidgets/QApplication>
            """ + text + """
            void View::slotSelectedItem(ZSettingItem *) {}
            int main(int argc, char **argv)
            {
                QApplication application(argc, argv);
                View view(nullptr, "view");
                const QModelIndex row = view.findChild<ZListBox *>()->model()->index(0, 0);
                std::printf("%s|%s|%s", qPrintable(view.mainWidgetTitle()), qPrintable(row.data().toString()),
                            qPrintable(row.data(ZListBox::ValueRole).toString()));
            }
            #include "view.moc"
            """)
        self.run_it(MOC, source, "-o", self.scratch / "view.moc")
        program = self.scratch / "view"
        libraries = BUILD / "lib"
        self.run_it(COMPILER, source, "-o", program, f"-I{self.scratch}", *self.flags(), f"-L{libraries}",
                    "-lkavappbase", "-lkavqt", f"-Wl,-rpath,{libraries}")
        self.assertEqual(self.run_it(program), "Call Times|Last Call|00:01:05")

    def test_a_tour_runs_as_it_stands(self):
        for page, _, text in of_kind("tour"):
            (self.scratch / "my.tour").write_text(text)
            self.run_it(BUILD / "bin/kavrecentcalls", "--tour", "photographs", "--script", "my.tour")

    def test_a_piece_of_a_catalogue_is_one_that_qt_takes(self):
        lrelease = shutil.which("lrelease", path=f"{os.environ['PATH']}:/usr/lib/qt6/bin")
        for page, _, text in of_kind("xml"):
            (self.scratch / "a.ts").write_text(f'<?xml version="1.0"?><!DOCTYPE TS><TS version="2.1" language="de">'
                                               f"{text}</TS>")
            self.assertIn("1 finished", self.run_it(lrelease, "a.ts", "-qm", "a.qm"))


class Commands(Case):
    def test_every_command_is_run_or_has_what_it_names(self):
        for page, _, text in of_kind("sh"):
            if text.startswith(("for ", "while ")):
                self.run_it("sh", "-n", "-c", text)
                continue
            for line in text.splitlines():
                for command in re.sub(r"  +\S.*", "", line).split(" && "):
                    self.check(page, command, is_sample=True)

    def test_what_is_not_run_stands_in_a_page(self):
        text = "\n".join(text for _, _, text in of_kind("sh"))
        for command in NOT_RUN:
            self.assertIn(command, text)

    def test_every_command_within_a_line_has_what_it_names(self):
        for page in PAGES:
            prose = re.sub(r"^```.*\n(?:.*\n)*?```$", "", page.read_text(), flags=re.M)
            for code in re.findall(r"`([^`\n]+)`", prose):
                if re.match(r"(\./\w|scripts/|cmake -|ctest -|kav(recentcalls|qcop|callrecorder)( |$)|build/dev/tests/)", code):
                    for command in code.split(" && "):
                        self.check(page, command, is_sample=False)

    def test_a_usage_is_that_of_the_programs_help(self):
        for page, _, text in of_kind("usage"):
            for line in text.splitlines():
                self.check_program(page, shlex.split(re.sub(r"[\[\]|]|\.\.\.", " ", line)), is_sample=False)

    def check(self, page, command, is_sample):
        if command in NOT_RUN:
            return
        words = shlex.split(command)
        while re.match(r"[A-Z_]+=", words[0]):
            words.pop(0)
        if words[0] in PROGRAMS:
            self.check_program(page, words, is_sample)
        elif words[0] in ("cmake", "ctest"):
            self.check_preset(page, words)
        elif "/tests/tst_" in words[0]:
            self.check_group(page, words)
        else:
            self.check_script(page, words)

    def check_script(self, page, words):
        script = SOURCE / words[0]
        self.assertTrue(os.access(script, os.X_OK), f"{page.name} names {words[0]}")
        if script == SOURCE / "run":
            return self.check_program(page, ["kavrecentcalls", *words[1:]], is_sample=False)
        # What a script of one line hands on is another's.
        content = script.read_text()
        for _ in re.findall(r"bench/bin/(\w+)", content):
            content += "".join(file.read_text() for file in (SOURCE / "bench").glob("*.cpp"))
        for word in words[1:]:
            if word.startswith("--"):
                self.assertRegex(content, rf'["-]{word[2:]}(?![\w-])', f"{page.name}: {words[0]} has no {word}")

    def check_preset(self, page, words):
        presets = json.loads((SOURCE / "CMakePresets.json").read_text())
        kind = {"ctest": "testPresets"}.get(words[0], "buildPresets" if "--build" in words else "configurePresets")
        if "--install" in words:
            return
        name = words[words.index("--preset") + 1]
        self.assertIn(name, [preset["name"] for preset in presets[kind]], f"{page.name}: {' '.join(words)}")
        for option in re.findall(r"-D(KAV_\w+)", " ".join(words)):
            self.assertIn(f"option({option} ", (SOURCE / "CMakeLists.txt").read_text(), f"{page.name}: {option}")

    def check_group(self, page, words):
        folder = words[0].partition("/tests/tst_")[2]
        self.assertTrue((SOURCE / "tests" / folder / f"tst_{words[1]}.cpp").is_file(), f"{page.name}: {' '.join(words)}")

    def check_program(self, page, words, is_sample):
        program = words[0]
        told = self.help_of(program)
        for word in words[1:]:
            if word.startswith("-"):
                self.assertRegex(told, rf"(?<![\w-]){re.escape(word)}(?![\w-])", f"{page.name}: {program} has no {word}")
        if is_sample and "--tour" in words:
            (self.scratch / "my.tour").write_text("open callTime\n")
            self.run_it(BUILD / "bin" / program, *words[1:])
        elif is_sample and program == "kavqcop" and words[1] == "send":
            self.run_it("dbus-run-session", "--", BUILD / "bin" / program, *words[1:])
        elif is_sample:
            self.fail(f"{page.name}: nobody runs {' '.join(words)}; say why in NOT_RUN")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
