"""What `cmake --install` puts into a tree, used from there: by a user, by a desktop, by a shell, by a developer.

    test_install.py SOURCE BUILD CMAKE COMPILER
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE, BUILD, CMAKE, COMPILER = sys.argv[1:5]
PROGRAMS = ("kavrecentcalls", "kavqcop", "kavcallrecorder", "kavmeter")
scratch = None
tree = None


def surroundings(**more):
    """Nothing leads to the build tree: no library path, a home of its own, no bus, no display."""
    kept = {name: os.environ[name] for name in ("PATH", "CCACHE_DIR") if name in os.environ}
    home = scratch / "home"
    home.mkdir(mode=0o700, exist_ok=True)
    return {**kept, "HOME": str(home), "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen",
            "XDG_DATA_HOME": str(home / "data"), "DBUS_SESSION_BUS_ADDRESS": "disabled:",
            "XDG_RUNTIME_DIR": str(home), **more}


def run(*command, code=0, **more):
    done = subprocess.run([str(word) for word in command], env=surroundings(**more), cwd=scratch,
                          capture_output=True, text=True, errors="replace", timeout=300)
    if done.returncode != code:
        raise AssertionError(f"{command} ended with {done.returncode}, not {code}:\n{done.stdout}{done.stderr}")
    return done.stdout + done.stderr


def setUpModule():
    global scratch, tree
    scratch = pathlib.Path(tempfile.mkdtemp(prefix="kav-install-"))
    # Moved when it is installed, so that what names its place by more than itself is found.
    first = scratch / "first"
    run(CMAKE, "--install", BUILD, "--prefix", first)
    tree = scratch / "moved"
    first.rename(tree)


def tearDownModule():
    shutil.rmtree(scratch)


def libraries():
    return next(tree.glob("lib*/**/libkavcallmeter.so.1")).parent


class Files(unittest.TestCase):
    def test_no_installed_file_names_the_source_or_the_build_tree(self):
        for file in tree.rglob("*"):
            if file.is_file():
                content = file.read_bytes()
                for path in (SOURCE, BUILD):
                    self.assertNotIn(path.encode(), content, file)

    def test_every_library_is_installed_under_its_name_and_soname(self):
        for name in ("libkavcallmeter.so.1", "libkavappbase.so.1", "libkavqt.so.1", "libkavcallsetupengine.so.1",
                     "libkavphone.so.1", "libkavsecuritysetup.so.1", "libkavhandset.so.1", "libaplog.so.1.0.0",
                     "libkavtapi-xscale-r.so", "libkavrecentcalls.so.1", "kavcallmeter/backends/libkavhandset-ofono.so",
                     "kavcallmeter/backends/libkavhandset-modemmanager.so"):
            file = libraries() / name
            self.assertTrue(file.is_file(), name)
            self.assertIn(f"[{file.name}]", run("readelf", "-d", file), name)

    def test_the_unit_starts_the_recorder_where_it_was_installed(self):
        unit = (tree / "lib/systemd/user/kavcallrecorder.service").read_text()
        self.assertIn(f"ExecStart={scratch}/first/bin/kavcallrecorder\n", unit)

    def test_the_desktop_finds_an_entry_an_icon_and_what_describes_the_program(self):
        share = tree / "share"
        entry = share / "applications/kavrecentcalls.desktop"
        self.assertEqual(run("desktop-file-validate", entry), "")
        metadata = share / "metainfo/kavrecentcalls.metainfo.xml"
        run("appstreamcli", "validate", "--no-net", metadata)
        version = run(tree / "bin/kavrecentcalls", "--version").split()[1]
        self.assertIn(f'version="{version}"', metadata.read_text())
        icon = re.search("^Icon=(.+)$", entry.read_text(), re.M).group(1)
        self.assertTrue((share / f"icons/hicolor/scalable/apps/{icon}.svg").is_file())
        program = re.search("^Exec=(.+)$", entry.read_text(), re.M).group(1)
        self.assertTrue((tree / "bin" / program.split()[0]).is_file())

    def test_the_desktop_names_the_program_in_every_language_that_it_speaks(self):
        share = tree / "share"
        languages = [file.stem for file in (share / "kavcallmeter/translations").glob("*.qm")]
        self.assertGreaterEqual(len(languages), 10)
        entry = (share / "applications/kavrecentcalls.desktop").read_text("utf-8")
        metadata = (share / "metainfo/kavrecentcalls.metainfo.xml").read_text("utf-8")
        for language in languages:
            for key in ("Name", "GenericName", "Comment"):
                self.assertIn(f"\n{key}[{language}]=", entry)
            self.assertIn(f'<name xml:lang="{language}">', metadata)


class Manuals(unittest.TestCase):
    def options(self, program):
        return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", run(tree / "bin" / program, "--help"))) - {"--help-all"}

    def test_every_option_has_its_place_in_the_manual_and_no_other_has(self):
        for program in PROGRAMS:
            page = (tree / f"share/man/man1/{program}.1").read_text().replace("\\-", "-")
            # Of another program, or of Qt.
            said = set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", page)) - {"--user", "--now", "--style", "--platform"}
            self.assertEqual(said, self.options(program), program)

    def test_every_exit_code_of_the_help_stands_in_the_manual(self):
        for program in ("kavrecentcalls", "kavcallrecorder"):
            page = (tree / f"share/man/man1/{program}.1").read_text()
            status = page[page.index(".SH EXIT STATUS"):]
            self.assertEqual(re.findall(r"^\.TP\n(\d+)$", status, re.M),
                             re.findall(r"^ +(\d+)  ", run(tree / "bin" / program, "--help"), re.M), program)

    def test_a_manual_is_set_without_a_warning(self):
        for program in PROGRAMS:
            page = tree / f"share/man/man1/{program}.1"
            self.assertEqual(run("groff", "-man", "-ww", "-z", "-Tutf8", page), "")

    def complete(self, program, *words):
        script = tree / f"share/bash-completion/completions/{program}"
        line = f'. "{script}"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _{program}; printf "%s\\n" "${{COMPREPLY[@]}}"'
        return set(run("bash", "-c", line, "bash", program, *words).split())

    def test_the_shell_completes_every_option(self):
        for program in ("kavrecentcalls", "kavcallrecorder"):
            self.assertEqual(self.complete(program, "--"), self.options(program), program)
        sent = self.complete("kavqcop", "send", "c", "m", "--")
        heard = self.complete("kavqcop", "listen", "c", "--")
        self.assertEqual(sent | heard | {"--help", "--version"}, self.options("kavqcop"))

    def test_the_shell_completes_the_values_that_the_program_takes(self):
        for option, wrong in (("--screen", "there is: "), ("--page", "there is: "),
                              ("--language", "there is: ")):
            told = run(tree / "bin/kavrecentcalls", option, "no-such", code=2)
            names = told[told.index(wrong) + len(wrong):].split(". See")[0]
            self.assertEqual(self.complete("kavrecentcalls", option, ""), set(names.split(", ")))
        told = run(tree / "bin/kavrecentcalls", "--help")
        for name in self.complete("kavrecentcalls", "--backend", ""):
            self.assertIn(name, told)


class Programs(unittest.TestCase):
    def test_the_host_finds_plug_in_and_tour_without_being_told_where(self):
        told = run(tree / "bin/kavrecentcalls", "--tour", scratch / "photographs", "--script", self.script())
        self.assertIn("title Call Times", told)

    def script(self):
        script = scratch / "one.tour"
        script.write_text("open callTime\nexpect title Call Times\n")
        return script

    def test_the_backends_are_found_by_their_names(self):
        for backend in ("modemmanager", "ofono"):
            told = run(tree / "bin/kavcallrecorder", "--backend", backend, "--state", scratch / "state", code=3,
                       DBUS_SYSTEM_BUS_ADDRESS="unix:path=/nowhere")
            self.assertIn("bus", told)
            self.assertNotIn("cannot open shared object", told)

    def test_a_library_that_lacks_a_function_is_an_error_that_names_it(self):
        folder = scratch / "lacking"
        folder.mkdir()
        (folder / "empty.c").write_text("int UTIL_GetTotalDuration(unsigned *seconds) { return *seconds = 0; }\n")
        run(COMPILER, "-shared", "-fPIC", "-x", "c", folder / "empty.c", "-o", folder / "libkavtapi-xscale-r.so")
        told = run(tree / "bin/kavrecentcalls", "--tour", scratch / "photographs", code=5, LD_LIBRARY_PATH=folder)
        self.assertRegex(told, "TAPI_|UTIL_")


class Developers(unittest.TestCase):
    """Headers, the CMake package, pkg-config; the examples are all that there is of this source tree."""

    @classmethod
    def setUpClass(cls):
        cls.built = scratch / "examples"
        run("cp", "-r", pathlib.Path(SOURCE, "examples"), scratch / "examples-source")
        run(CMAKE, "-S", scratch / "examples-source", "-B", cls.built, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={tree}",
            f"-DCMAKE_CXX_COMPILER={COMPILER}", "-DCMAKE_BUILD_TYPE=Debug", f"-DCMAKE_INSTALL_PREFIX={tree}")
        run(CMAKE, "--build", cls.built)

    def print_screen(self, name, **more):
        return run(self.built / "secondhost", "--print", name, **more)

    def test_a_second_host_shows_every_screen(self):
        for name, title in (("callTime", "Call Times"), ("callCost", "Call Costs"), ("dataTime", "Data Times"),
                            ("dataVolume", "Data Volumes")):
            self.assertIn(f"{title}\n", self.print_screen(name))

    def test_a_replacement_takes_the_place_of_the_telephony_library(self):
        self.assertNotIn("00:00:07", self.print_screen("callTime"))
        self.assertIn("Last Call | 00:00:07", self.print_screen("callTime", LD_LIBRARY_PATH=self.built))

    def test_the_replacement_has_every_function_of_ours(self):
        def functions(file):
            return set(re.findall(r" T (\w+)$", run("nm", "-D", "--defined-only", file), re.M))
        ours = functions(libraries() / "libkavtapi-xscale-r.so")
        self.assertIn("TAPI_CS_GetTotalCallTime", ours)
        self.assertLessEqual({name for name in ours if not name.startswith("_")},
                             functions(self.built / "libkavtapi-xscale-r.so"))

    def test_the_page_lists_what_a_library_in_the_place_of_ours_has_to_export(self):
        run(pathlib.Path(SOURCE, "scripts/list-exports"), libraries())

    def test_a_backend_from_outside_is_taken_by_its_path(self):
        run(tree / "bin/kavrecentcalls", "--backend", self.built / "libkavhandset-example.so", "--state", "none",
            "--photo", scratch / "example.png")
        self.assertTrue((scratch / "example.png").is_file())

    def test_a_backend_that_is_installed_beside_ours_is_taken_by_its_name(self):
        run(tree / "bin/kavrecentcalls", "--backend", "example", "--state", "none", "--photo", scratch / "p.png", code=3)
        run(CMAKE, "--install", self.built)
        self.assertIn("example", run(tree / "bin/kavrecentcalls", "--help"))
        run(tree / "bin/kavrecentcalls", "--backend", "example", "--state", "none", "--photo", scratch / "p.png")

    def test_a_modem_from_outside_is_found_by_auto(self):
        run(CMAKE, "--install", self.built)
        script = scratch / "auto.tour"
        # The simulated telephone would say "0.00 units".
        script.write_text('open callCost\nexpect row 0 Credit Available | "0.00 "\n')
        tour = ("--tour", scratch / "auto", "--script", script)
        run(tree / "bin/kavrecentcalls", "--backend", "auto", "--state", "none", *tour, code=1)
        run(tree / "bin/kavrecentcalls", "--backend", "auto", "--state", "none", *tour, EXAMPLE_MODEM="Mine")

    def test_pkg_config_leads_to_every_header_and_library(self):
        folder = libraries() / "pkgconfig"
        names = sorted(file.stem for file in folder.glob("*.pc"))
        self.assertEqual(len(names), 9)
        pkg_config = ("pkg-config", "--cflags", "--libs", "Qt6Widgets", *names)
        flags = run(*pkg_config, PKG_CONFIG_PATH=folder).split()
        include = tree / "include/kavcallmeter"
        lines = [f'#include "{header.relative_to(include)}"' for header in sorted(include.rglob("*.h"))]
        self.assertGreater(len(lines), 40)
        source = scratch / "all.cpp"
        source.write_text("\n".join(lines) + "\nint main() { destroy_callTime(nullptr); }\n")
        run(COMPILER, "-std=c++20", "-fPIC", "-O0", source, *flags, f"-Wl,-rpath,{libraries()}", "-o", scratch / "all")
        run(scratch / "all")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
