#!/usr/bin/env python3
"""Reads the package of Windows Installer back: package.py VERSION PACKAGES_FOLDER DATA_FOLDER"""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

VERSION, PACKAGES, DATA = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
EVENTS = r"System\CurrentControlSet\Services\EventLog\Application\OrvanDiagnosticTool_MC"


def only(folder):
    (package,) = folder.glob("*.msi")
    return package


def table(package, name):
    """The rows of a table, each by its column's name."""
    told = subprocess.run(
        ["msiinfo", "export", package, name], check=True, capture_output=True, text=True
    ).stdout.splitlines()
    return [dict(zip(told[0].split("\t"), row.split("\t"))) for row in told[3:]]


def properties(package):
    return {row["Property"]: row["Value"] for row in table(package, "Property")}


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.package, cls.later = only(PACKAGES), only(PACKAGES / "later")
        cls.scratch = tempfile.TemporaryDirectory()
        subprocess.run(
            ["msiextract", "-C", cls.scratch.name, cls.package], check=True, capture_output=True
        )
        (cls.folder,) = pathlib.Path(cls.scratch.name).rglob("OrvanDiagnostics")

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    def test_it_holds_the_tools_folder_and_nothing_else(self):
        expected = {
            "OrvanDiagnosticEvents.dll",
            "OrvanDiagnosticTool_ENU.chm",
            "OrvanDiagnostics.dll",
            "blankWPNDB.mdb",
            "cabmaker.exe",
            "orvandiag.exe",
        }
        expected |= {f"ZMKXML/{file.name}" for file in (DATA / "ZMKXML").glob("HT*.xml")}
        for folder in ("sample", "server"):
            expected |= {
                file.relative_to(DATA).as_posix()
                for file in (DATA / folder).rglob("*")
                if file.is_file()
            }
        # A library for each catalogue; the catalogues themselves would be languages once more.
        expected |= {f"{file.stem}.dll" for file in (DATA / "languages").glob("ZMK*.txt")}
        found = {
            file.relative_to(self.folder).as_posix()
            for file in self.folder.rglob("*")
            if file.is_file()
        }
        self.assertEqual(expected, found)

    def test_files_are_whole(self):
        for file in (DATA / "ZMKXML").glob("HT*.xml"):
            self.assertEqual(file.read_bytes(), (self.folder / "ZMKXML" / file.name).read_bytes())
        build = PACKAGES.parent / "data"
        for name in ("blankWPNDB.mdb", "OrvanDiagnosticTool_ENU.chm"):
            self.assertEqual((build / name).read_bytes(), (self.folder / name).read_bytes())

    def test_programs_need_what_windows_brings_along_alone(self):
        for module in [*self.folder.glob("*.exe"), self.folder / "OrvanDiagnostics.dll"]:
            with self.subTest(module.name):
                head = subprocess.run(
                    ["x86_64-w64-mingw32-objdump", "-p", module],
                    check=True, capture_output=True, text=True, errors="replace",
                ).stdout
                needed = re.findall(r"DLL Name: (\S+)", head)
                self.assertIn("KERNEL32.dll", needed)
                self.assertEqual([], [name for name in needed if re.match("lib|zlib", name)])

    def test_it_goes_by_the_version_of_the_project_and_is_of_one_family(self):
        found, later = properties(self.package), properties(self.later)
        self.assertEqual(VERSION, found["ProductVersion"])
        self.assertEqual("1", found["ALLUSERS"])
        self.assertEqual(found["UpgradeCode"], later["UpgradeCode"])
        self.assertEqual("{64DA9C14-7CF4-464B-A90D-73CB12EEF2CA}", found["UpgradeCode"])
        self.assertNotEqual(found["ProductCode"], later["ProductCode"])
        self.assertEqual(
            {row["Component"]: row["ComponentId"] for row in table(self.package, "Component")},
            {row["Component"]: row["ComponentId"] for row in table(self.later, "Component")},
        )

    def test_it_takes_the_place_of_any_version_up_to_its_own(self):
        rows = {row["ActionProperty"]: row for row in table(self.package, "Upgrade")}
        older, newer = rows["OLDERFOUND"], rows["NEWERFOUND"]
        self.assertEqual(("0.0.0", VERSION, "768"),
                         (older["VersionMin"], older["VersionMax"], older["Attributes"]))
        self.assertEqual((VERSION, "", "2"),
                         (newer["VersionMin"], newer["VersionMax"], newer["Attributes"]))
        steps = {row["Action"]: int(row["Sequence"])
                 for row in table(self.package, "InstallExecuteSequence")}
        self.assertLess(steps["InstallInitialize"], steps["RemoveExistingProducts"])
        self.assertLess(steps["RemoveExistingProducts"], steps["InstallFiles"])
        # Else a file that is newer than the package's is kept, and goes with the older version.
        self.assertEqual("amus", properties(self.package)["REINSTALLMODE"])

    def test_every_component_is_of_the_64_bit_machine_and_installed(self):
        parts = table(self.package, "Component")
        self.assertTrue(all(int(row["Attributes"]) & 256 for row in parts))
        self.assertEqual(
            {row["Component"] for row in parts},
            {row["Component_"] for row in table(self.package, "FeatureComponents")},
        )
        summary = subprocess.run(
            ["msiinfo", "suminfo", self.package], check=True, capture_output=True, text=True
        ).stdout
        self.assertRegex(summary, r"Template: x64;1033")

    def test_it_registers_the_snap_in_and_the_source_of_events_and_nothing_else(self):
        ids = "5A8DE2A2-AD6B-42BC-80AE-A92443587D62|FD723634-84AC-435B-9D53-DD9A92DDE783"
        node = "E5308AA3-94DF-4122-B68C-0F68EE99CA05"
        own = re.compile(
            rf"(Software\\Classes\\CLSID\\\{{({ids})\}}"
            rf"|Software\\Microsoft\\MMC\\SnapIns\\\{{({ids})\}}"
            rf"|Software\\Microsoft\\MMC\\NodeTypes\\\{{{node}\}}|{re.escape(EVENTS)})(\\.*|$)"
        )
        for row in table(self.package, "Registry"):
            self.assertEqual("2", row["Root"])
            self.assertRegex(row["Key"], own)
            self.assertFalse(row["Key"].endswith("\\"))

    def test_a_server_that_has_the_source_of_events_keeps_its_own(self):
        (part,) = [row for row in table(self.package, "Component")
                   if row["Component"] == "EventSource"]
        self.assertEqual(
            'NOT EVENTMESSAGES OR EVENTMESSAGES ~>< "OrvanDiagnosticEvents.dll"',
            part["Condition"],
        )
        (look,) = table(self.package, "RegLocator")
        self.assertEqual((EVENTS, "EventMessageFile"), (look["Key"], look["Name"]))
        self.assertIn("EVENTMESSAGES", properties(self.package)["SecureCustomProperties"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
