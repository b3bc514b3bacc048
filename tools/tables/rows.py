"""The rows of host/tables.txt, read and checked.

A row says what stands at one position of one interface: INTERFACE POSITION RESULT NAME(ARGUMENTS).
"""

import re
from dataclasses import dataclass, field

# A position that no side may call. Its row keeps the later ones where they are.
RESERVED = "Reserved"
# Interfaces of a template, by the name that a host knows them under.
ALIASES = {
    "ISchemeList<IPrintScheme>": "IFactorySchemeList",
    "ISchemeList<IUserScheme>": "IUserSchemeList",
}
NUMBERS = {"std::%sint%d_t" % (sign, bits) for sign in ("", "u") for bits in (8, 16, 32)} | {"float"}
TEXTS = {"const char*", "const wchar_t*"}
STORAGE = {"void*"}

ROW = re.compile(r"(I\w+(?:<I\w+>)?) (\d+) (\S.*[ *])(\w+)\((.*)\)")
POINTER = re.compile(r"(I\w+)\*")
VECTOR = re.compile(r"std::vector<(I\w+)\*>\*")


class BrokenTables(Exception):
    """Names the file, the line and the reason."""


@dataclass(frozen=True)
class Operation:
    line: int
    position: int
    result: str
    name: str
    arguments: tuple

    @property
    def is_reserved(self):
        return self.name.startswith(RESERVED)


@dataclass
class Interface:
    table: str  # as the table names it
    operations: list = field(default_factory=list)

    @property
    def name(self):
        return ALIASES.get(self.table, self.table)

    @property
    def used(self):
        return [operation for operation in self.operations if not operation.is_reserved]


def read(path):
    """The interfaces of a file, in its order."""
    with open(path, encoding="utf-8") as file:
        lines = file.read().splitlines()
    return parse(lines, path)


def parse(lines, path):
    interfaces = {}
    line = 0
    try:
        for line, text in enumerate(lines, start=1):
            take_row(interfaces, line, text)
        found = list(interfaces.values())
        line = max(line, 1)
        require(found, "there is no row")
        for interface in found:
            for operation in interface.operations:
                line = operation.line
                check_types(operation, {known.name for known in found})
        return found
    except ValueError as error:
        raise BrokenTables("%s:%d: %s" % (path, line, error)) from None


def require(condition, otherwise):
    if not condition:
        raise ValueError(otherwise)


def take_row(interfaces, line, text):
    table, operation = read_row(line, text)
    require("<" not in table or table in ALIASES, "%s has no name of its own in tools/tables/rows.py" % table)
    is_last = bool(interfaces) and list(interfaces)[-1] == table
    require(table not in interfaces or is_last, "the rows of %s do not stand together" % table)
    add_operation(interfaces.setdefault(table, Interface(table)), operation)


def read_row(line, text):
    row = ROW.fullmatch(text)
    require(row, "no row of the form INTERFACE POSITION RESULT NAME(ARGUMENTS)")
    table, position, result, name, arguments = row.groups()
    types = tuple(written(argument) for argument in arguments.split(",")) if arguments else ()
    return table, Operation(line, int(position), written(result), name, types)


def written(type_):
    """A type as this project writes it; the compilers put a blank before the star."""
    return type_.strip().replace(" *", "*")


def add_operation(interface, operation):
    expected = len(interface.operations)
    require(operation.position == expected,
            "%s has position %d where %d follows" % (interface.table, operation.position, expected))
    names = [known.name for known in interface.operations]
    require(operation.name not in names,
            "%s has two operations %s; compilers place overloads differently" % (interface.table, operation.name))
    if operation.is_reserved:
        check_reserved(operation)
    interface.operations.append(operation)


def check_reserved(operation):
    promised = (RESERVED + str(operation.position), "void", ())
    require((operation.name, operation.result, operation.arguments) == promised,
            "a reserved position is void %s%d()" % (RESERVED, operation.position))


def check_types(operation, interfaces):
    result = operation.result
    require(result == "void" or is_value(result, interfaces), "no interface may return %s" % result)
    for argument in operation.arguments:
        is_list = VECTOR.fullmatch(argument)
        require(is_value(argument, interfaces) or (is_list and is_list.group(1) in interfaces),
                "no interface may take %s" % argument)


def is_value(type_, interfaces):
    pointer = POINTER.fullmatch(type_)
    return type_ in NUMBERS | TEXTS | STORAGE or bool(pointer and pointer.group(1) in interfaces)
