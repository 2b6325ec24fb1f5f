#!/usr/bin/env python3
"""Reads back what Windows shows of the built programs: module_resources.py VERSION BUILD_FOLDER"""
import pathlib
import re
import struct
import subprocess
import sys
import unittest

VERSION, BUILD = sys.argv[1], pathlib.Path(sys.argv[2])
PROGRAMS = [BUILD / "bin/orvandiag.exe", BUILD / "bin/cabmaker.exe"]
SNAP_IN = BUILD / "bin/OrvanDiagnostics.dll"
LIBRARIES = sorted((BUILD / "data").glob("*.dll"))
# As the adapter numbers them, from 201 on.
SCOPE_IMAGES = ["console", "processes", "process", "log", "log-current"]
SIZES = [16, 20, 24, 32, 48, 256]

ICONS, BITMAP, GROUP_ICON, VERSION_BLOCK, MANIFEST = 3, 2, 14, 16, 24


def resource(module, kind, name, raw=True):
    command = ["wrestool", "-x", f"--type={kind}", f"--name={name}", module]
    return subprocess.run(
        command + (["--raw"] if raw else []), check=True, capture_output=True
    ).stdout


def sizes_of(icon):
    """Width of each picture of an icon file; 0 there stands for 256."""
    (count,) = struct.unpack_from("<H", icon, 4)
    return [icon[6 + 16 * index] or 256 for index in range(count)]


def icon_in(module, number, size):
    """An icon as a file of SIZE bytes; the reader leaves some zeros behind it."""
    file = resource(module, GROUP_ICON, number, raw=False)
    assert not file[size:].strip(b"\0")
    return file[:size]


class ModuleResources(unittest.TestCase):
    def test_every_module_has_the_version_of_the_project(self):
        self.assertGreaterEqual(len(LIBRARIES), 6)
        numbers = [int(number) for number in VERSION.split(".")]
        for module in PROGRAMS + [SNAP_IN] + LIBRARIES:
            with self.subTest(module.name):
                block = resource(module, VERSION_BLOCK, 1)
                at = block.index(struct.pack("<I", 0xFEEF04BD))
                high, low = struct.unpack_from("<II", block, at + 8)
                self.assertEqual(
                    numbers + [0], [high >> 16, high & 0xFFFF, low >> 16, low & 0xFFFF]
                )
                texts = block.decode("utf-16-le", "replace")
                for text in ("OrvanDiagnostics", module.name, VERSION):
                    self.assertIn(f"\0{text}\0", texts)

    def test_the_icon_has_every_size(self):
        drawn = (BUILD / "icons/console.ico").read_bytes()
        self.assertEqual(SIZES, sizes_of(drawn))
        for module in PROGRAMS + [SNAP_IN]:
            with self.subTest(module.name):
                self.assertEqual(drawn, icon_in(module, 1, len(drawn)))

    def test_manifests_ask_for_what_the_tool_counts_on(self):
        for module in PROGRAMS:
            with self.subTest(module.name):
                manifest = resource(module, MANIFEST, 1).decode()
                self.assertRegex(manifest, r'Common-Controls" version="6\.0\.0\.0"')
                self.assertIn("PerMonitorV2", manifest)
                self.assertRegex(manifest, r"<longPathAware[^>]*>true<")
                self.assertIn('level="asInvoker"', manifest)
                self.assertNotIn("activeCodePage", manifest)

    def test_the_snap_in_has_the_pictures_of_its_nodes(self):
        self.assertRegex(resource(SNAP_IN, MANIFEST, 2).decode(), r"Common-Controls")
        for index, name in enumerate(SCOPE_IMAGES):
            with self.subTest(name):
                drawn = (BUILD / f"icons/{name}.ico").read_bytes()
                self.assertEqual(SIZES, sizes_of(drawn))
                self.assertEqual(drawn, icon_in(SNAP_IN, 201 + index, len(drawn)))

    def test_bitmaps_of_the_root_have_a_ground_that_stands_for_nothing(self):
        for number, size in ((101, 16), (102, 32)):
            with self.subTest(size):
                bitmap = resource(SNAP_IN, BITMAP, number)
                head, width, height, _, bits = struct.unpack_from("<IiiHH", bitmap)
                self.assertEqual((size, size, 24), (width, height, bits))
                rows = bitmap[head:]
                upper_left = rows[3 * size * (size - 1) :][:3]
                self.assertEqual(b"\xff\x00\xff", upper_left)
                pixels = [rows[at : at + 3] for at in range(0, len(rows), 3)]
                drawn = [pixel for pixel in pixels if pixel != upper_left]
                self.assertGreater(len(drawn), size * size // 2)
                for blue, green, red in drawn:  # nothing of the ground is blended in
                    self.assertFalse(green < 40 and red > 150 and blue > 150)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
