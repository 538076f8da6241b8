"""package_test.py PACKAGE ROOT: what is in the package, which is installed in ROOT."""

import configparser
import gzip
import re
import subprocess
import sys
import unittest
from pathlib import Path
from xml.etree import ElementTree

FILES = Path(__file__).with_name("files.txt").read_text()


def printed(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout


def field(name):
    return printed("dpkg-deb", "--field", package, name).strip()


def installed(pattern):
    files = list(root.glob(pattern))
    assert len(files) == 1, f"{pattern} is {files or 'not there'}"
    return files[0]


class Package(unittest.TestCase):
    maxDiff = None

    def test_its_files_are_those_of_the_list(self):
        files = ""
        for line in printed("dpkg-deb", "--contents", package).splitlines():
            mode, owner, _, _, _, path = line.split(maxsplit=5)
            files += f"{mode} {owner} {path}\n"
        self.assertEqual(files, FILES)

    def test_it_depends_on_the_library_that_prints(self):
        depends = re.findall(r"(?:^|[,|] *)([^ ,]+)", field("Depends"))
        self.assertIn("libcups2", depends)  # it is loaded on the first print

    def test_its_menu_entry_has_an_icon(self):
        entry = configparser.RawConfigParser()
        entry.read(installed("usr/share/applications/*.desktop"))
        icon = installed(f"usr/share/icons/hicolor/scalable/apps/{entry['Desktop Entry']['Icon']}.svg")
        self.assertEqual(ElementTree.parse(icon).getroot().tag, "{http://www.w3.org/2000/svg}svg")

    def test_whatever_names_the_version_names_the_same(self):
        version = field("Version")
        changelog = gzip.decompress(installed("usr/share/doc/plotvue/changelog*.gz").read_bytes()).decode()
        release = ElementTree.parse(installed("usr/share/metainfo/*.xml")).find("releases/release")
        self.assertEqual([changelog.partition(" unstable")[0], release.get("version")],
                         [f"plotvue ({version})", version])
        shown = f"Version {version}\0".encode("utf-16-le")  # in the start-up window
        self.assertIn(shown, (root / "usr/bin/plotvue").read_bytes())


if __name__ == "__main__":
    package, root = Path(sys.argv[1]), Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1], verbosity=2)
