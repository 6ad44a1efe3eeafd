"""The binding tables (build/<module>.json of every module) read as one model of classes,
methods and kinds, shared by the generators of the packages and of the stubs. A class belongs
to the module that registers it; another module may add rows to it (its views, say)."""
import json
from dataclasses import dataclass, field

# Values that cross as pointer objects of _osgvalues's descriptors, converted at the edge:
# descriptor -> (_osgvalues maker, the Python type it takes, its annotation).
EDGE = {
    "_p_std__string": ("string", "str", "str"),
    "_p_GLenum": ("glenum", "int", "int"),
    "_p_GLbitfield": ("glbitfield", "int", "int"),
    "_p_osg__Uniform__Type": ("uniform_type", "int", "int"),
    "_p_std__vectorT_osg__Node_p_t": ("node_path", "list", "Sequence[Node]"),
    "_p_std__vectorT_std__string_t": ("description_list", "list", "Sequence[str]"),
    "_p_std__vectorT_bool_t": ("value_list", "list", "Sequence[bool]"),
    "_p_std__vectorT_osg__Vec3f_t": ("vec3f_list", "list", "Sequence[tuple[float, float, float]]"),
    "_p_std__vectorT_osg__Vec3d_t": ("vec3d_list", "list", "Sequence[tuple[float, float, float]]"),
}
# Results read back as Python values: descriptor -> annotation.
READ = {
    "_p_std__string": "str",
    "_p_GLenum": "int",
    "_p_GLbitfield": "int",
    "_p_osg__Uniform__Type": "int",
    "_p_std__vectorT_osg__Node_p_t": "list[Node]",
    "_p_std__vectorT_std__string_t": "list[str]",
    "_p_std__vectorT_bool_t": "list[bool]",
    "_p_std__vectorT_osg__Group_p_t": "list[Group]",
    "_p_std__vectorT_std__vectorT_osg__Node_p_t_t": "list[list[Node]]",
    "_p_std__vectorT_osg__Matrixd_t": "list[Matrixd]",
    "_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t": "list[ClipPlane]",
    "_p_std__vectorT_osg__StateSet_p_t": "list[StateSet]",
    "_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t": "tuple[int, int]",
    "_p_std__mapT_GLenum_unsigned_int_t": "dict[int, int]",
    "_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t":
        "dict[tuple[int, int], tuple[StateAttribute, int]]",
    "_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t": "list[dict[int, int]]",
    "_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t":
        "list[dict[tuple[int, int], tuple[StateAttribute, int]]]",
    "_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t": "dict[str, tuple[Any, int]]",
    "_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t": "dict[str, tuple[str, int]]",
    "_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t": "tuple[StateAttribute, int]",
    "_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t": "tuple[Any, int]",
    "_p_std__pairT_std__string_unsigned_int_t": "tuple[str, int]",
    "_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t": "dict[int, tuple[Any, ...]]",
}
# The _osgvalues classes of the containers read back.
CONTAINERS = {"_p_std__mapT_GLenum_unsigned_int_t": "ModeList",
              "_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t": "AttributeList",
              "_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t": "TextureModeList",
              "_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t": "TextureAttributeList",
              "_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t": "UniformList",
              "_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t": "DefineList",
              "_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t": "RefAttributePair",
              "_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t": "RefUniformPair",
              "_p_std__pairT_std__string_unsigned_int_t": "DefinePair",
              "_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t": "BufferAttachmentMap"}
# Scalars behind references (accessors such as Vec3f.x()) read back too.
CELLS = {"_p_double": ("double_cell", "float"), "_p_float": ("float_cell", "float"),
         "_p_unsigned_int": ("uint_cell", "int")}
# _osgvalues classes of the other descriptors, for annotations.
VALUE_CLASSES = {
    "_p_osg__BoundingBoxImplT_osg__Vec3d_t": "BoundingBox",
    "_p_osg__BoundingSphereImplT_osg__Vec3d_t": "BoundingSphere",
    "_p_double": "DoubleCell", "_p_float": "FloatCell", "_p_unsigned_int": "UIntCell",
    "_p_std__string": "String", "_p_GLenum": "GLenum", "_p_GLbitfield": "GLbitfield",
    "_p_osg__Uniform__Type": "UniformType", "_p_std__vectorT_osg__Node_p_t": "NodePath",
    "_p_std__vectorT_std__string_t": "DescriptionList", "_p_std__vectorT_bool_t": "ValueList",
    "_p_std__vectorT_osg__Group_p_t": "ParentList", "_p_std__vectorT_std__vectorT_osg__Node_p_t_t": "NodePathList",
    "_p_std__vectorT_osg__Matrixd_t": "MatrixList", "_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t": "ClipPlaneList",
    "_p_std__vectorT_osg__StateSet_p_t": "StateSetList", "_p_std__vectorT_osg__Vec3f_t": "Vec3fList",
    "_p_std__vectorT_osg__Vec3d_t": "Vec3dList",
    "_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t": "TypeMemberPair",
    **CONTAINERS,
}


def is_float(spelling):
    s = spelling.replace(" const", "")
    return s in ("float", "double") or s.endswith("value_type")


@dataclass
class Param:
    spelling: str
    kind: str
    descriptor: str | None
    const: bool

    @property
    def out(self):
        """A non-const reference the call fills in: a number cell or a math value."""
        return self.kind == "reference" and not self.const and (
            self.descriptor in CELLS or self.descriptor in Model.value_descriptors)


@dataclass
class Candidate:
    prototype: str
    params: list
    result: dict
    member: bool = False

    @property
    def args(self):
        """The parameters a caller passes, the object excluded."""
        return self.params[1:] if self.member else self.params


@dataclass
class Row:
    name: str
    convention: str
    doc: str
    kind: str
    data: dict
    candidates: list = field(default_factory=list)
    cls: "Class | None" = None
    attr: str = ""
    module: str = "_osg"

    @property
    def flat(self):
        return f"{self.module}.{self.name}"

    @property
    def member(self):
        return bool(self.candidates) and all(c.member for c in self.candidates)


@dataclass
class Class:
    name: str
    descriptor: str
    module: str = "_osg"
    constructible: bool = False
    bases: list = field(default_factory=list)
    methods: list = field(default_factory=list)
    constants: list = field(default_factory=list)
    new: Row | None = None
    delete: Row | None = None
    spelling: str = ""


# The package each module's classes and functions join.
PACKAGES = {"_osg": "osg", "_osgdraw": "osg", "_osgDB": "osgDB", "_osgViewer": "osgViewer"}
# Python written, not generated, that a package takes as it stands after its generated part:
# what a package does beyond forwarding to its modules (files that do not exist are skipped).
EXTRAS = {"osg": ["viewer/osg_extras.py"], "osgDB": ["osgdb/package.py"], "osgViewer": ["viewer/package.py"]}


class Model:
    value_descriptors = set()

    def __init__(self, paths):
        self.types, self.constants, self.classes, self.rows, self.modules = {}, [], {}, [], []
        for path in [paths] if isinstance(paths, str) else paths:
            self._load(path)
        self.by_descriptor = {c.descriptor: c for c in self.classes.values()}
        names = sorted(self.classes, key=len, reverse=True)
        self.free = []
        for row in self.rows:
            if row.kind != "function":
                continue
            owner = row.data.get("prefix") or ""
            if row.name.startswith(("new_", "delete_")):
                cls = self.classes.get(row.name.split("_", 1)[1])
                if cls:
                    row.cls = cls
                    setattr(cls, "new" if row.name.startswith("new_") else "delete", row)
                    continue
            if not owner:
                owner = next((n for n in names if row.name.startswith(n + "_")), "")
            cls = self.classes.get(owner)
            if cls is None:
                self.free.append(row)
                continue
            cls.spelling = cls.spelling or row.data.get("owner", "")
            row.cls, row.attr = cls, row.name[len(owner) + 1:]
            for c in row.candidates:
                first = c.params[0].spelling if c.params else ""
                c.member = bool(row.data.get("owner")) and first in (row.data["owner"] + " *", row.data["owner"] + " const *")
            cls.methods.append(row)
        for module, name, value in self.constants:
            owner = next((n for n in names if name.startswith(n + "_")), None)
            if owner:
                self.classes[owner].constants.append((name[len(owner) + 1:], f"{module}.{name}"))
        self._bases()
        # Math values: made without arguments and deleted, never reference counted.
        Model.value_descriptors = {
            c.descriptor for c in self.classes.values()
            if c.delete and c.new and c.new.data["take_ref"] == "none" and any(not k.args for k in c.new.candidates)
            and c.delete.candidates[0].prototype.startswith("osg::") and self.sequence_length(c)}

    def _load(self, path):
        with open(path) as f:
            data = json.load(f)
        module = data.get("module", "_osg")
        self.modules.append(module)
        for t in data["types"]:
            known = self.types.setdefault(t["name"], {"name": t["name"], "str": t["str"], "from": []})
            known["from"] += [d for d in t["from"] if d not in known["from"]]
        self.constants += [(module, *c) for c in data["constants"]]
        for r in data["rows"]:
            if r["kind"] == "native":
                continue
            row = Row(r["name"], r["convention"], r["doc"], r["kind"], r, module=module)
            for c in r.get("candidates", []):
                row.candidates.append(Candidate(c["prototype"], [Param(**p) for p in c["params"]], c["result"]))
            self.rows.append(row)
            if row.kind == "register":
                self.classes[r["prefix"]] = Class(r["prefix"], r["descriptor"], module=module)
            elif row.kind == "init":
                self.classes[r["prefix"]].constructible = True

    def converts(self, descriptor, base):
        """Whether a pointer of `descriptor` converts to one of `base` in the ring's cast graph."""
        return descriptor == base or descriptor in self.types.get(base, {}).get("from", ())

    def package(self, module):
        return PACKAGES.get(module)

    def _bases(self):
        """OSG's bases, from the cast graph: the registered classes a class converts to."""
        ancestors = {}
        for c in self.classes.values():
            ancestors[c.name] = {b.name for b in self.classes.values()
                                 if b is not c and c.descriptor in self.types[b.descriptor]["from"]}
        order = list(self.classes)
        for c in self.classes.values():
            direct = [a for a in ancestors[c.name] if not any(a in ancestors[o] for o in ancestors[c.name])]
            c.bases = sorted(direct, key=order.index)

    def ordered(self):
        """Classes with their bases first, otherwise in registration order."""
        done, out = set(), []

        def visit(c):
            if c.name in done:
                return
            for b in c.bases:
                visit(self.classes[b])
            done.add(c.name)
            out.append(c)
        for c in self.classes.values():
            visit(c)
        return out

    def method(self, cls, attr):
        return next((r for r in cls.methods if r.attr == attr), None)

    def sequence_length(self, cls):
        """N for a class that reads as N numbers: the longest all-number constructor, when
        the class also hands out its element pointer."""
        if not cls.new or not (self.method(cls, "_v_get") or self.method(cls, "ptr")):
            return 0
        n = [len(k.params) for k in cls.new.candidates if k.params and all(p.kind == "scalar" for p in k.params)]
        return max(n, default=0)

    def element_source(self, cls):
        return "_v_get" if self.method(cls, "_v_get") else "ptr"
