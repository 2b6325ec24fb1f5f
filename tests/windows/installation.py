#!/usr/bin/env python3
"""Installs the package under Wine, goes over to a later version, removes it, and looks at what is
there after each step: installation.py PACKAGES_FOLDER RUN_UNDER_WINE

Works in a machine of its own, which takes some seconds to make and 700 MB while the test runs.
Gives 77 where there is no Wine.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PACKAGES, RUNNER = pathlib.Path(sys.argv[1]), sys.argv[2]
SNAP_IN_KEYS = [
    r"HKLM\Software\Classes\CLSID\{5A8DE2A2-AD6B-42BC-80AE-A92443587D62}",
    r"HKLM\Software\Classes\CLSID\{FD723634-84AC-435B-9D53-DD9A92DDE783}",
    r"HKLM\Software\Microsoft\MMC",
]
EVENTS = r"HKLM\System\CurrentControlSet\Services\EventLog\Application\OrvanDiagnosticTool_MC"
SERVER = r"HKLM\Software\Kelma Systems\Kelma Orvan"
VIEWER = SERVER + r"\ToolsCrate\Diagnostic Tools\Orvan Diagnostic Viewer"
UNINSTALL = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall"
REFUSED = 1603 & 0xFF  # of the installer's status, which is passed on by one byte


def only(folder):
    (package,) = folder.glob("*.msi")
    return package


class Machine:
    """A Windows machine in a folder."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.environment = dict(os.environ, WINEPREFIX=str(self.folder), WINEDEBUG="-all")
        self.drive = self.folder / "drive_c"
        self.tool = self.drive / "Program Files/OrvanDiagnostics"
        self.packages = []  # that are installed
        self.keys = set()  # that a test has set
        self.run("wineboot", "-i")

    def end(self):
        for server in ("wineserver", "/usr/lib/wine/wineserver"):
            if found := shutil.which(server):
                subprocess.run([found, "-k", "-w"], env=self.environment, check=False)
                break
        shutil.rmtree(self.folder, ignore_errors=True)

    def run(self, *arguments):
        return subprocess.run(
            [RUNNER, *map(str, arguments)],
            env=self.environment, cwd=self.folder, capture_output=True, text=True,
            errors="replace",
        )

    def installer(self, wish, package):
        name = "Z:" + str(package).replace("/", "\\")
        return self.run("msiexec", wish, name, "/qn").returncode

    def install(self, package):
        status = self.installer("/i", package)
        if status == 0:
            self.packages = [package]  # whichever version was there has gone
        return status

    def remove(self, package):
        self.packages.remove(package)
        return self.installer("/x", package)

    def key(self, name):
        """What a key and those below it hold, a line each; nothing where there is none."""
        told = self.run("reg", "query", name, "/s")
        lines = told.stdout.splitlines() if told.returncode == 0 else []
        return [line for line in lines if line.strip()]

    def set(self, key, name, text):
        self.keys.add(key)
        self.run("reg", "add", key, "/v", name, "/d", text, "/f")

    def registration(self):
        return [line for key in SNAP_IN_KEYS for line in self.key(key)]

    def installed(self):
        """Versions of the tool that the machine says are installed."""
        lines = self.key(UNINSTALL)
        names = sum("Orvan Diagnostics" in line for line in lines)
        versions = [line.split()[-1] for line in lines if "DisplayVersion" in line]
        return names, versions

    def files(self):
        return sorted(
            file.relative_to(self.tool).as_posix()
            for file in self.tool.rglob("*")
            if file.is_file()
        )


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.machine = Machine()
        cls.package, cls.later = only(PACKAGES), only(PACKAGES / "later")
        cls.expected = sorted(
            line.removeprefix("OrvanDiagnostics/")
            for line in subprocess.run(
                ["msiextract", "-l", cls.package], check=True, capture_output=True, text=True
            ).stdout.splitlines()
        )

    @classmethod
    def tearDownClass(cls):
        cls.machine.end()

    def tearDown(self):
        """Nothing of the tool stays on the machine for the next test."""
        for package in list(self.machine.packages):
            self.machine.remove(package)
        for key in self.machine.keys:
            self.machine.run("reg", "delete", key, "/f")
        self.machine.keys.clear()
        shutil.rmtree(self.machine.tool, ignore_errors=True)

    def test_it_installs_whole_and_leaves_nothing_when_it_is_removed(self):
        machine = self.machine
        before = machine.registration()
        self.assertEqual([], before)
        self.assertEqual(0, machine.install(self.package))
        self.assertEqual(self.expected, machine.files())
        self.assertEqual(1, machine.installed()[0])
        events = "\n".join(machine.key(EVENTS))
        self.assertIn(r"C:\Program Files\OrvanDiagnostics\OrvanDiagnosticEvents.dll", events)
        self.assertRegex(events, r"TypesSupported\s+REG_DWORD\s+0x7")
        self.assertEqual(0, machine.remove(self.package))
        self.assertFalse(machine.tool.exists())
        self.assertEqual(before, machine.registration())
        self.assertEqual([], machine.key(EVENTS))
        self.assertEqual(0, machine.installed()[0])

    def test_programs_run_from_where_they_lie(self):
        machine = self.machine
        self.assertEqual(0, machine.install(self.package))
        told = machine.run(machine.tool / "orvandiag.exe", "--version")
        self.assertEqual(0, told.returncode, told.stderr)
        self.assertIn(self.package.name.split("-")[1], told.stdout)
        about = machine.run(machine.tool / "orvandiag.exe", "about").stdout
        major, minor, revision = self.package.name.split("-")[1].split(".")
        self.assertIn(f" {major}.{minor} Build {revision}", about)
        for language in ("English", "French", "Japanese"):
            self.assertIn(language, about)
        # On a copy of a server that has no folder of the tool, it finds what ships beside it.
        site = machine.folder / "site"
        made = machine.run(machine.tool / "orvandiag.exe", "sample", site, "--lines", "100")
        self.assertEqual(0, made.returncode, made.stderr)
        shutil.rmtree(site / "drive_c/OrvanDiagnostics", ignore_errors=True)
        traces = machine.run(machine.tool / "orvandiag.exe", "--site", site, "macro")
        self.assertEqual(0, traces.returncode, traces.stderr)
        self.assertIn("Call Flow - Transfers", traces.stdout)
        (machine.folder / "a.txt").write_text("text")
        (machine.folder / "a.ddf").write_text(
            ".Set CabinetNameTemplate=a.cab\n.Set DiskDirectoryTemplate=packed\na.txt\n"
        )
        packed = machine.run(machine.tool / "cabmaker.exe", "/f", "a.ddf")
        self.assertEqual(0, packed.returncode, packed.stderr)
        self.assertTrue((machine.folder / "packed/a.cab").read_bytes().startswith(b"MSCF"))

    def test_the_package_registers_what_the_snap_in_itself_does(self):
        machine = self.machine
        self.assertEqual(0, machine.install(self.package))
        by_package = machine.registration()
        self.assertGreater(len(by_package), 10)
        library = r"C:\Program Files\OrvanDiagnostics\OrvanDiagnostics.dll"
        self.assertEqual(0, machine.run("regsvr32", "/s", "/u", library).returncode)
        self.assertEqual([], machine.registration())
        self.assertEqual(0, machine.run("regsvr32", "/s", library).returncode)
        self.assertEqual(by_package, machine.registration())

    def test_a_later_version_takes_the_place_and_leaves_what_the_tool_made(self):
        machine = self.machine
        self.assertEqual(0, machine.install(self.package))
        (machine.tool / "LOGS").mkdir()
        log = machine.tool / "LOGS/OrvanDiagnostics_2025-02-20_154200.LOG"
        log.write_text("a log")
        own = machine.tool / "ZMKXML/HTOwn.xml"
        own.write_text("<GA/>")
        shipped = machine.tool / "ZMKXML/HTCallFlow.xml"
        text = shipped.read_text()
        shipped.write_text("changed")
        machine.set(SERVER + r"\OrvanDiagnostics", "CurrentLocalizationLanguage", "1036")
        machine.set(VIEWER, "Path", r"C:\Viewer\viewer.exe")
        settings = machine.key(SERVER)
        registration, events = machine.registration(), machine.key(EVENTS)
        self.assertEqual(0, machine.install(self.later))
        kept = ["LOGS/" + log.name, "ZMKXML/HTOwn.xml"]
        self.assertEqual(sorted(self.expected + kept), machine.files())
        self.assertEqual(text, shipped.read_text())
        self.assertEqual((1, [self.later.name.split("-")[1]]), machine.installed())
        self.assertEqual(registration, machine.registration())
        self.assertEqual(events, machine.key(EVENTS))
        self.assertEqual(3, len(events))
        # The older one is refused, and nothing is taken away for it.
        self.assertEqual(REFUSED, machine.install(self.package))
        self.assertEqual(sorted(self.expected + kept), machine.files())
        self.assertEqual(0, machine.remove(self.later))
        self.assertEqual(kept, machine.files())
        self.assertEqual(settings, machine.key(SERVER))
        self.assertEqual([], machine.registration())

    def test_a_servers_own_source_of_events_is_left_alone(self):
        machine = self.machine
        machine.set(EVENTS, "EventMessageFile", r"C:\Orvan\Localize\Messaging\ENU\events.dll")
        before = machine.key(EVENTS)
        self.assertEqual(0, machine.install(self.package))
        self.assertEqual(before, machine.key(EVENTS))
        self.assertEqual(0, machine.remove(self.package))
        self.assertEqual(before, machine.key(EVENTS))


if __name__ == "__main__":
    if not any(map(shutil.which, ("wine64", "wine", "/usr/lib/wine/wine64"))):
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
