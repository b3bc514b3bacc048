#!/usr/bin/env python3
"""write-zip.py FOLDER: packs a folder into FOLDER.zip. The same files make the same archive, to the byte."""

import os
import sys
import zipfile

LONG_AGO = (1980, 1, 1, 0, 0, 0)  # the first moment that the format knows


def files_below(folder):
    for path, folders, names in os.walk(folder):
        folders.sort()
        for name in sorted(names):
            yield os.path.join(path, name)


def write(folder):
    parent = os.path.dirname(os.path.abspath(folder))
    with zipfile.ZipFile(folder + ".zip", "w", zipfile.ZIP_DEFLATED) as archive:
        for path in files_below(os.path.abspath(folder)):
            entry = zipfile.ZipInfo(os.path.relpath(path, parent), LONG_AGO)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            with open(path, "rb") as file:
                archive.writestr(entry, file.read())


write(sys.argv[1].rstrip("/"))
