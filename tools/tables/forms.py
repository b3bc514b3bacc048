"""The C++ headers that are written from the rows: one function each."""

import re

WIDTH = 120
LETTERS = {
    "void": "v",
    "void*": "a",
    "float": "f",
    "const char*": "t",
    "std::int8_t": "s",
    "std::uint8_t": "c",
    "std::int16_t": "w",
    "std::uint16_t": "w",
    "std::int32_t": "i",
    "std::uint32_t": "u",
}
# What the library offers; every other interface is a host's.
LIBRARY = "IQuorvane"


def constant(name):
    """IHeadLayoutList: HEAD_LAYOUT_LIST."""
    return re.sub(r"(?<=[a-z])(?=[A-Z])", "_", name[1:]).upper()


def in_lines(start, items, end):
    """The items after one another, and below one another where they do not fit beside each other."""
    line = start + ", ".join(items) + end
    if len(line) <= WIDTH:
        return line
    lines = [""]
    for item in items:
        if len(lines[-1]) + len(item) > WIDTH - 16:
            lines.append("")
        lines[-1] += item + ", "
    indent = "\n" + " " * (len(start) - len(start.lstrip()) + 4)
    return start + indent + indent.join(each.rstrip() for each in lines).rstrip(",") + end


def header(includes, body):
    parts = ["// Written from host/tables.txt.", "#pragma once"]
    parts += ["\n".join("#include %s" % include for include in includes)] if includes else []
    return "\n\n".join(parts + body) + "\n"


def in_namespace(body):
    return ["namespace tables\n{"] + body + ["} // namespace tables"]


def list_macro(interfaces):
    rows = ["#define HOST_INTERFACES(DO)"] + ["    DO(%s)" % interface.name for interface in interfaces]
    return " \\\n".join(rows)


def positions(interfaces):
    """What stands at each position, for a check that visits them."""
    body = ["// Every interface of host/.\n" + list_macro(interfaces)]
    primary = ("// Visit tells of each position: Used<RESULT, ARGUMENT...>(POSITION, NAME) or Reserved(POSITION).\n"
               "template <class Interface>\nstruct Positions;")
    return header(['"host/Quorvane.h"'], body + in_namespace([primary] + [visits(each) for each in interfaces]))


def visits(interface):
    calls = "\n".join("        " + visit(operation) for operation in interface.operations)
    return ("template <>\nstruct Positions<%s>\n{\n    template <class Visitor>\n    static void Visit(Visitor& visitor)\n"
            "    {\n%s\n    }\n};" % (interface.name, calls))


def visit(operation):
    if operation.is_reserved:
        return "visitor.Reserved(%d);" % operation.position
    types = ", ".join((operation.result,) + operation.arguments)
    return 'visitor.template Used<%s>(%d, "%s");' % (types, operation.position, operation.name)


def operations(interfaces):
    """The operations of each interface as constants of a type."""
    general = ("template <auto... OPERATIONS>\nstruct Operations\n{\n};\n\n"
               "template <class Interface>\nstruct OperationsOf;")
    return header(['"host/Quorvane.h"'], in_namespace([general] + [operations_of(each) for each in interfaces]))


def operations_of(interface):
    constants = ["&%s::%s" % (interface.name, operation.name) for operation in interface.used]
    return ("template <>\nstruct OperationsOf<%s>\n{\n%s\n};"
            % (interface.name, in_lines("    using Type = Operations<", constants, ">;")))


def signatures(interfaces):
    """What a host offers, in plain data: for hosts that know no header of host/ and no standard library."""
    offered = [interface for interface in interfaces if interface.name != LIBRARY]
    ids = ["    %s," % interface.name[1:] for interface in offered] + ["    Count"]
    structs = ["struct Position\n{\n    unsigned number;\n    const char* name;\n"
               "    // The result and then the arguments, a letter each: v nothing, p object, a storage of the caller,\n"
               "    // t text, f float, i and u 32 bits with and without sign, w 16 bits, s and c 8 bits with and\n"
               "    // without sign.\n"
               "    const char* signature;\n};",
               "struct Signatures\n{\n    const char* interfaceName;\n    const Position* positions;\n"
               "    unsigned positionCount;\n};"]
    enum = "enum class InterfaceId\n{\n%s\n};" % "\n".join(ids)
    arrays = [signature_array(interface) for interface in offered]
    return header([], in_namespace(structs + [enum] + arrays + [signature_index(offered)]))


def signature_array(interface):
    rows = ["    {%d, \"%s\", \"%s\"}," % (operation.position, operation.name, letters(operation))
            for operation in interface.used]
    return "constexpr Position %s[] = {\n%s\n};" % (constant(interface.name), "\n".join(rows))


def letters(operation):
    types = (operation.result,) + operation.arguments
    return "".join(LETTERS.get(type_, "a" if "<" in type_ else "p") for type_ in types)


def signature_index(interfaces):
    rows = ["    {\"%s\", %s, %d}," % (interface.name, constant(interface.name), len(interface.used))
            for interface in interfaces]
    return "// In the order of InterfaceId.\nconstexpr Signatures SIGNATURES[] = {\n%s\n};" % "\n".join(rows)


def forwarding(interfaces):
    """A class for each interface that passes every call on."""
    return header(['"host/Quorvane.h"'], in_namespace([FORWARDING] + [forwards(each) for each in interfaces]))


FORWARDING = """\
// Which operation of which interface is called.
struct Operation
{
    const char* interfaceName;
    unsigned position;
    const char* name;
};

// An object that passes each call on to its hook, by
//     template <class Interface, class Result, class... Arguments>
//     Result Pass(const Operation& operation, Interface* object, Result (Interface::*function)(Arguments...),
//                 Arguments... arguments);
// What the hook gives back is the result; (object->*function)(arguments...) makes the call. A reserved position does
// nothing.
template <class Interface, class Hook>
class CForwarding;

template <class Interface, class Hook>
class CForwardingBase : public Interface
{
public:
    CForwardingBase(Interface* object, const Hook& hook) : m_pObject(object), m_hook(hook) {}

    Interface* Wrapped() const { return m_pObject; }
    Hook& GetHook() { return m_hook; }

protected:
    ~CForwardingBase() = default;

    template <class Result, class... Arguments>
    Result Pass(const Operation& operation, Result (Interface::*function)(Arguments...), Arguments... arguments)
    {
        return m_hook.Pass(operation, m_pObject, function, arguments...);
    }

private:
    Interface* m_pObject;
    Hook m_hook;
};"""


def forwards(interface):
    name = interface.name
    lines = ["template <class Hook>",
             "class CForwarding<%s, Hook> : public CForwardingBase<%s, Hook>" % (name, name),
             "{",
             "public:",
             "    using CForwardingBase<%s, Hook>::CForwardingBase;" % name]
    return "\n".join(lines + [forward(interface, operation) for operation in interface.used] + ["};"])


def forward(interface, operation):
    names = ["argument%d" % (index + 1) for index in range(len(operation.arguments))]
    parameters = ", ".join("%s %s" % pair for pair in zip(operation.arguments, names))
    which = '{"%s", %d, "%s"}' % (interface.name, operation.position, operation.name)
    passed = [which, "&%s::%s" % (interface.name, operation.name)] + names
    return ("\n    %s %s(%s) override\n    {\n%s\n    }"
            % (operation.result, operation.name, parameters, in_lines("        return this->Pass(", passed, ");")))


FORMS = {"Forwarding": forwarding, "Operations": operations, "Positions": positions, "Signatures": signatures}
