#!/usr/bin/env python3
"""write.py TABLES FORM HEADER: writes one form of host/tables.txt, see forms.py, into a header."""

import sys
from pathlib import Path

from forms import FORMS
from rows import BrokenTables, read


def main(tables, form, target):
    try:
        text = FORMS[form](read(tables))
    except BrokenTables as error:
        sys.exit(str(error))
    Path(target).write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
