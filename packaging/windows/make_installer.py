#!/usr/bin/env python3
"""Makes the package of Windows Installer of what was built.

    make_installer.py --version 1.0.0 --output orvandiag.msi --icon console.ico --data DIR FILE...

Programs and libraries are stripped. What lies below DIR keeps its place there. Everything else lies
beside the programs.
"""
import argparse
import pathlib
import re
import shutil
import subprocess
import tempfile
import uuid

HERE = pathlib.Path(__file__).resolve().parent
# A file keeps the number of its component through all versions, as it keeps its place.
COMPONENTS = uuid.UUID("4f0d7e43-2ac8-4a40-b0ac-ae74e73c7d6a")

# What wixl has no attributes for: a component that depends on something, a range of versions whose
# last one is in it (0x300 takes both ends in), and a property that is found before the installer
# asks for more rights.
CHANGES = [
    "UPDATE `Component` SET `Condition` = 'NOT EVENTMESSAGES OR "
    'EVENTMESSAGES ~>< "OrvanDiagnosticEvents.dll"\' WHERE `Component` = \'EventSource\'',
    "DELETE FROM `Upgrade` WHERE `ActionProperty` = 'OLDERFOUND'",
    "INSERT INTO `Upgrade` (`UpgradeCode`, `VersionMin`, `VersionMax`, `Attributes`, "
    "`ActionProperty`) VALUES ('{upgrade_code}', '0.0.0', '{version}', 768, 'OLDERFOUND')",
    "UPDATE `Property` SET `Value` = 'OLDERFOUND;NEWERFOUND;EVENTMESSAGES' "
    "WHERE `Property` = 'SecureCustomProperties'",
]
UPGRADE_CODE = "{64DA9C14-7CF4-464B-A90D-73CB12EEF2CA}"

# The package's names of folders, which orvandiag.wxs has.
FOLDERS = {
    ".": "INSTALLDIR",
    "ZMKXML": "Definitions",
    "sample": "Sample",
    "sample/messages": "SampleMessages",
    "server": "Server",
}

COMPONENT = """      <Component Id="{id}" Guid="{guid}" Win64="yes">
        <File Id="{id}" Name="{name}" Source="{source}" KeyPath="yes"/>
      </Component>
"""


def stage(files, data, folder):
    """Copies the files; gives the path of each in the tool's folder."""
    placed = []
    for file in map(pathlib.Path, files):
        place = pathlib.PurePosixPath(file.name)
        if file.is_relative_to(data):
            place = pathlib.PurePosixPath(file.relative_to(data))
        target = folder / place
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(file, target)
        if target.suffix in (".exe", ".dll"):
            subprocess.run(["x86_64-w64-mingw32-strip", target], check=True)
        placed.append(place)
    return sorted(placed)


def component(place):
    """What the package calls a file and its component."""
    return re.sub(r"\W", "_", str(place))


def file_list(placed):
    """A fragment with a component for each file, which the package refers to."""
    folders = {folder: [] for folder in FOLDERS.values()}
    for place in placed:
        folders[FOLDERS[str(place.parent)]].append(place)
    text = '<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi">\n  <Fragment>\n'
    for folder, members in folders.items():
        text += f'    <DirectoryRef Id="{folder}">\n'
        for place in members:
            text += COMPONENT.format(
                id=component(place),
                guid=str(uuid.uuid5(COMPONENTS, str(place).lower())).upper(),
                name=place.name,
                source=place,
            )
        text += "    </DirectoryRef>\n"
    text += '    <ComponentGroup Id="Files">\n'
    for place in placed:
        text += f'      <ComponentRef Id="{component(place)}"/>\n'
    return text + "    </ComponentGroup>\n  </Fragment>\n</Wix>\n"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--version", required=True)
    parser.add_argument("--output", required=True)
    parser.add_argument("--icon", required=True)
    parser.add_argument("--data", required=True, type=pathlib.Path)
    parser.add_argument("files", nargs="+")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        placed = stage(arguments.files, arguments.data, folder)
        shutil.copy(arguments.icon, folder / "tool.ico")
        shutil.copy(HERE / "orvandiag.wxs", folder)
        (folder / "files.wxs").write_text(file_list(placed))
        # It takes files from the folder that it runs in alone.
        command = ["wixl", "-a", "x64", "-D", "Version=" + arguments.version]
        command += ["-o", "made.msi", "orvandiag.wxs", "files.wxs"]
        run = subprocess.run(command, cwd=folder, capture_output=True, text=True)
        if run.returncode != 0 or run.stderr.strip():
            raise SystemExit(run.stderr or "wixl failed")
        for change in CHANGES:
            change = change.replace("{upgrade_code}", UPGRADE_CODE)
            change = change.replace("{version}", arguments.version)
            subprocess.run(["msibuild", "made.msi", "-q", change], cwd=folder, check=True)
        output = pathlib.Path(arguments.output).resolve()
        output.parent.mkdir(parents=True, exist_ok=True)
        shutil.move(folder / "made.msi", output)


main()
