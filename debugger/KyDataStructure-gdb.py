"""Shows the objects of KyDataStructure in gdb as what they hold.

    (gdb) print photo
    $1 = 0x5555e8a0 ZolResSerializeInfo of 2, 1 reference = {rsResId = 42, ...

gdb loads this file by itself from where it is installed; "source" does it elsewhere. An
object is shown through any of its interfaces as the class that it really is, which takes
the library's debug information; without it, gdb shows a plain pointer. "print /r" shows
what gdb would show by itself.

What is known of the inside of a class stands in one place: in its printer, and for what
belongs to the standard library in the functions ahead. Where an object is not as its printer
knows it, broken or of another version, the printer says so and the plain members follow.
"""

import gdb
import gdb.printing


# ---- The standard library ----


def is_of(value, template):
    return type_name(value.type).startswith("std::%s<" % template)


def first_word(value, of_type):
    return value.address.cast(of_type.pointer()).dereference()


def atomic_value(atomic):
    """A std::atomic is nothing but its value."""
    return first_word(atomic, atomic.type.strip_typedefs().template_argument(0))


def owned_address(pointer):
    """A std::unique_ptr or std::shared_ptr begins with its address."""
    target = pointer.type.strip_typedefs().template_argument(0).strip_typedefs()
    if target.code == gdb.TYPE_CODE_ARRAY:
        target = target.target()
    return first_word(pointer, target.pointer())


class Elements:
    """The elements of a std::vector, each read when it is asked for."""

    def __init__(self, vector):
        implementation = vector["_M_impl"]
        self.first = implementation["_M_start"]
        self.count = int(implementation["_M_finish"] - self.first)
        room = int(implementation["_M_end_of_storage"] - self.first)
        if not 0 <= self.count <= room:
            raise ValueError("%d elements in room for %d" % (self.count, room))

    def __len__(self):
        return self.count

    def __iter__(self):
        return (self.first[index] for index in range(self.count))


# ---- Types and members ----


def type_name(of_type):
    return of_type.strip_typedefs().unqualified().name or ""


def plain_name(name):
    """The name of a class without where it stands."""
    return name.replace("(anonymous namespace)::", "").replace("ZOL::", "")


def has_base(of_type, wanted):
    of_type = of_type.strip_typedefs()
    return type_name(of_type).startswith(wanted) or any(
        has_base(field.type, wanted) for field in of_type.fields() if field.is_base_class
    )


def is_ours(of_type):
    return of_type.code == gdb.TYPE_CODE_STRUCT and type_name(of_type).startswith("ZOL::")


def members(value):
    """The members of an object, those of its bases first, without the counter's."""
    for field in value.type.strip_typedefs().fields():
        if field.is_base_class:
            if not type_name(field.type).startswith("ZOL::RefCnt<"):
                yield from members(value[field])
        elif not field.artificial and hasattr(field, "bitpos"):
            yield field.name, value[field]


def as_shown(name, value, siblings):
    """A member, by the name that users know, and without what it is wrapped in."""
    if is_of(value, "atomic"):
        value = atomic_value(value)
    elif is_of(value, "unique_ptr") and "size_" in siblings:
        value = block(owned_address(value), int(siblings["size_"]))
    return name.rstrip("_"), value


def block(address, size):
    """The bytes at an address as an array, or the address where there are none."""
    if not address or size <= 0:
        return address
    return address.cast(address.type.target().array(size - 1).pointer()).dereference()


# ---- Printers of objects ----


class ObjectPrinter:
    """Any object: its class, how many references it has, and its members."""

    hint = None

    def __init__(self, value):
        self.value = value
        self.references = int(atomic_value(value["block_"]["strong"]["word_"]))
        self.count = None

    def name(self):
        return plain_name(type_name(self.value.type))

    def text(self):
        count = "" if self.count is None else " of %d" % self.count
        noun = "reference" if self.references == 1 else "references"
        return "%s%s, %d %s" % (self.name(), count, self.references, noun)

    def parts(self):
        siblings = dict(members(self.value))
        for name, value in siblings.items():
            yield as_shown(name, value, siblings)


class ListPrinter(ObjectPrinter):
    """List<Interface, Store>: a vector `items`, whatever the store."""

    hint = "array"

    def __init__(self, value):
        super().__init__(value)
        self.items = Elements(value["items"])
        self.count = len(self.items)

    def name(self):
        return plain_name(type_name(self.value.type.template_argument(0)))

    def parts(self):
        for index, item in enumerate(self.items):
            yield "[%d]" % index, owned_address(item) if is_of(item, "shared_ptr") else item


class DescriptionPrinter(ObjectPrinter):
    """ZolResSerializeInfo: slots for numbers and texts, by the rows of constant tables."""

    # (member, member in it that holds the slots, table that names the rows)
    SLOTS = (
        ("intProps_", "values_", "ZOL::resPropTable"),
        ("stringProps_", "texts_", "ZOL::resPropTable"),
        ("userStrings_", "texts_", "ZOL::userStringTable"),
    )
    UNSHOWN = ("stateMutex_", "hasRelatedRes_")

    def __init__(self, value):
        super().__init__(value)
        self.slots = [slot for row in self.SLOTS for slot in self.held(*row)]
        self.count = len(self.slots)

    def held(self, member, slots, table):
        held = int(atomic_value(self.value[member]["held_"]["bits_"]))
        values = self.value[member][slots]["_M_elems"]
        names = self.names(table)
        for row in range(values.type.strip_typedefs().range()[1] + 1):
            if held >> row & 1:
                value = values[row]
                yield names(row), text_at(value) if is_of(value, "unique_ptr") else value

    @staticmethod
    def names(table):
        symbol = gdb.lookup_global_symbol(table)
        if symbol is None:
            return lambda row: "%s[%d]" % (plain_name(table), row)
        rows = symbol.value()["_M_elems"]
        return lambda row: string_view(rows[row]["key"])

    def parts(self):
        yield from self.slots
        slots = [row[0] for row in self.SLOTS]
        for name, value in super().parts():
            if name + "_" not in slots and name + "_" not in self.UNSHOWN:
                yield name, value


def text_at(pointer):
    return owned_address(pointer).lazy_string()


def string_view(view):
    return view["_M_str"].string(length=int(view["_M_len"]))


# ---- Printers of values ----


# How a char* is shown as nothing but its text.
PLAIN_TEXT = {"address": False, "symbols": False}


class ValuePrinter:
    """ZolValue: the name of its type and the payload."""

    hint = None
    parts = None
    # type number: (word, member of the union)
    TYPES = {
        0: ("empty", None),
        1: ("bool", "boolean"),
        2: ("double", "number"),
        3: ("float", "shortNumber"),
        4: ("long long", "longInteger"),
        5: ("int", "integer"),
        6: ("unsigned int", "unsignedInteger"),
        19: ("text", "text"),
    }

    def __init__(self, value):
        number = int(value["type_"])
        if number in self.TYPES:
            word, member = self.TYPES[number]
            payload = member and value["value_"][member].format_string(**PLAIN_TEXT)
        else:
            word = "type %d" % number
            payload = value["value_"]["longInteger"].format_string(format="x")
        self.words = [word, payload] if payload else [word]

    def text(self):
        return " ".join(self.words)


class PropertyPrinter:
    """_Property: what its bytes are by its type."""

    hint = None
    parts = None
    INTEGER, TEXT = 4, 7

    def __init__(self, value):
        self.is_present = bool(value["present"])
        self.type = int(value["type"])
        self.bytes = value["value"]

    def text(self):
        if not self.is_present:
            return "no value"
        if self.type == self.INTEGER:
            return "integer %s" % first_word(self.bytes, gdb.lookup_type("long long"))
        if self.type == self.TEXT:
            text = self.bytes.address.cast(gdb.lookup_type("char").pointer())
            return "text %s" % text.format_string(**PLAIN_TEXT)
        return "type %d" % self.type


def wrapped(value):
    """What is in a field of a record or in a counted pointer: a class around one member."""
    fields = value.type.strip_typedefs().fields()
    if len(fields) == 1 and fields[0].name in ("value_", "text_", "object_", "list_"):
        return value[fields[0]]
    return None


class MemberPrinter:
    """A class that is shown as its one member, which has no printer of this file."""

    hint = None
    parts = None

    def __init__(self, member):
        self.member = member

    def text(self):
        of_type = self.member.type.strip_typedefs()
        if of_type.code != gdb.TYPE_CODE_PTR:
            return self.member
        if type_name(of_type.target()) != "char":
            return self.member.format_string()
        return self.member.format_string(**PLAIN_TEXT) if self.member else '""'


# ---- Finding the printer ----

# By the beginning of the name, the first that fits.
CLASSES = (
    ("ZOL::List<", ListPrinter),
    ("ZOL::ZolResSerializeInfo", DescriptionPrinter),
    ("", ObjectPrinter),
)
VALUES = {"ZOL::ZolValue": ValuePrinter, "ZOL::_Property": PropertyPrinter}


class Shown:
    """What gdb asks of a printer; with the plain members where the printer fails."""

    def __init__(self, printer, value, lead=""):
        self.value = value
        self.lead = lead
        self.fault = None
        try:
            self.printer = printer(value)
            self.text = self.printer.text()
        except Exception as fault:  # whatever it is, gdb goes on with the plain view
            self.fault = fault

    def to_string(self):
        if self.fault:
            return "%s<not as its printer knows it: %s>" % (self.lead, self.fault)
        return self.lead + self.text if isinstance(self.text, str) else self.text

    def children(self):
        try:
            if self.fault:
                yield from members(self.value)
            elif self.printer.parts:
                yield from self.printer.parts()
        except Exception as fault:
            yield "fault", str(fault)

    def display_hint(self):
        return None if self.fault else self.printer.hint


def shown_object(address, lead):
    """For the object behind one of its interfaces; None for what is not this library's."""
    really = address.dynamic_type
    if not has_base(really.target(), "ZOL::Counted<"):
        return None
    # Only to another type: gdb may lose a value that is cast to its own.
    value = (address if really == address.type else address.cast(really)).dereference()
    name = type_name(value.type)
    printer = next(printer for beginning, printer in CLASSES if name.startswith(beginning))
    return Shown(printer, value, lead)


def shown(value):
    """What shows a value, or None where gdb shows it by itself."""
    of_type = value.type.strip_typedefs()
    if of_type.code == gdb.TYPE_CODE_PTR:
        if value and is_ours(of_type.target().strip_typedefs()):
            return shown_object(value, "0x%x " % int(value))
        return None
    if not is_ours(of_type):
        return None
    if type_name(of_type) in VALUES:
        return Shown(VALUES[type_name(of_type)], value)
    member = wrapped(value)
    if member is not None:
        return shown(member) or Shown(MemberPrinter, member)
    return shown_object(value.address, "") if value.address else None


class Printers(gdb.printing.PrettyPrinter):
    def __call__(self, value):
        try:
            return shown(value)
        except (gdb.error, RuntimeError):  # memory that cannot be read
            return None


gdb.printing.register_pretty_printer(
    gdb.current_objfile(), Printers("KyDataStructure"), replace=True
)
