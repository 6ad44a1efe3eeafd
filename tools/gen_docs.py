"""Extracts OpenSceneGraph's header comments for a module's docstrings.

    python3 tools/gen_docs.py INCLUDE_ROOT TYPE_TABLE HEADER_LIST OUT

Reads every header of INCLUDE_ROOT/osg and every other header HEADER_LIST includes
(osgUtil/SmoothingVisitor, osgDB/ReadFile, ...), attaches each comment block (/** */, ///
or //, or a trailing ///<) to the declaration that follows it, keyed by the qualified member
name as the module's prototypes spell it ("osg::Vec3f::length", "osg::Matrixf::operator *",
"osg::componentMultiply"), lets derived classes inherit their bases' comments, and writes a
C++ table of the keys that name a class of the module's type table (TYPE_TABLE, where
classes are spelled "osg::Class *" or "osg::Class") or a free function of a header the
module includes.
"""
import os
import re
import sys

DECL = re.compile(r"(operator\s*(?:\(\)|\[\]|[^\s\w(]+)|~?\w+)\s*\(")
CLASS = re.compile(r"^\s*(?:template\s*<[^>]*>\s*)?(?:class|struct)\s+(?:\w+_EXPORT\s+)?(\w+)\s*(?::\s*([^{]*))?\{?\s*$")
NOT_NAMES = {"if", "for", "while", "switch", "return", "sizeof", "defined", "META_Object", "META_Node",
             "META_StateAttribute", "OSG_EXPORT", "OSGUTIL_EXPORT"}


def clean(lines):
    out = []
    for line in lines:
        line = re.sub(r"^\s*(/\*\*?|\*/|\*(?!/)|///?<?|//!?)", "", line)
        line = re.sub(r"\*/\s*$", "", line).rstrip()
        out.append(line.strip())
    while out and not out[0]:
        out.pop(0)
    while out and not out[-1]:
        out.pop()
    return "\n".join(out)


def parse(path, comments, bases, free=None, spaces=None):
    """Adds {key: [comment, ...]} and {class: [base, ...]} for one header; the names of its
    namespace-level functions go to `free`, each class's namespace to `spaces`."""
    scopes, depth, pending, in_block, block, opened, prev_comment = [], 0, None, False, [], None, False
    with open(path, encoding="latin-1") as f:
        lines = f.read().splitlines()
    for raw in lines:
        line = raw.strip()
        if in_block:
            block.append(raw)
            if "*/" in raw:
                in_block, pending = False, clean(block)
            continue
        if line.startswith("/*"):
            block = [raw]
            if "*/" in line:
                pending = clean(block)
            else:
                in_block = True
            continue
        if line.startswith("//"):
            text = clean([raw])
            pending = (pending + "\n" + text) if pending and prev_comment else text
            prev_comment = True
            continue
        prev_comment = False
        if not line or line.startswith("#"):
            continue
        code = re.sub(r"//.*$|/\*.*?\*/", "", line)
        trailing = re.search(r"///<(.*)$", line)
        scope = scopes[-1] if scopes else None
        at_scope = scope is not None and scope[1] == depth or (not scopes and depth == 0)
        m = re.match(r"^\s*namespace\s+(\w+)", code)
        c = CLASS.match(code)
        if m:
            opened = ("ns", m.group(1))
        elif c and not code.rstrip().endswith(";"):
            opened = ("class", c.group(1))
            if spaces is not None and scopes:
                spaces.setdefault(c.group(1), scopes[0][2])
            bases[c.group(1)] = re.findall(r"(\w+)\s*(?:,|$)", re.sub(r"<[^>]*>", "", c.group(2) or ""))
        elif at_scope and (d := DECL.search(code)) and d.group(1) not in NOT_NAMES:
            name = d.group(1)
            if name.startswith("operator"):
                name = "operator " + re.sub(r"^operator\s*", "", name)
            names = [s[2] for s in scopes]
            key = "::".join(names + [name])
            if free is not None and len(names) == 1:
                free.add(key)
            text = trailing.group(1).strip() if trailing else pending
            if text:
                comments.setdefault(key, [])
                if text not in comments[key]:
                    comments[key].append(text)
        pending = None
        for ch in code:
            if ch == "{":
                depth += 1
                if opened:
                    scopes.append((opened[0], depth, opened[1]))
                    opened = None
            elif ch == "}":
                if scopes and scopes[-1][1] == depth:
                    scopes.pop()
                depth -= 1
        if code.endswith(";"):
            opened = None


def inherit(comments, bases, spaces):
    """Derived::member takes Base::member's comments when Derived declares none."""
    def chain(cls, seen=()):
        for b in bases.get(cls, []):
            if b not in seen:
                yield b
                yield from chain(b, seen + (b,))
    by_class = {}
    for key in list(comments):
        parts = key.split("::")
        if len(parts) == 3:
            by_class.setdefault(parts[1], {})[parts[2]] = comments[key]
    ns_of = lambda cls: spaces.get(cls, "osg")  # noqa: E731
    for cls in list(bases):
        for base in chain(cls):
            for member, texts in by_class.get(base, {}).items():
                if member != base and not member.startswith("~"):
                    comments.setdefault(f"{ns_of(cls)}::{cls}::{member}", texts)


def c_string(text):
    out = []
    for ch in text.encode("utf-8"):
        c = chr(ch)
        out.append({"\\": "\\\\", '"': '\\"', "\n": "\\n"}.get(c) or (c if 32 <= ch < 127 else f"\\{ch:03o}"))
    return '"' + "".join(out) + '"'


def main(root, type_table, header_list, out):
    comments, bases, free, spaces = {}, {}, set(), {}
    includes = re.findall(r"#include <(\w+)/(\w+)>", open(header_list).read())
    included = {n for d, n in includes if d == "osg"} | {"Vec2f", "Vec2d", "Vec3f", "Vec3d", "Vec4f", "Vec4d"}
    for name in sorted(os.listdir(os.path.join(root, "osg"))):
        path = os.path.join(root, "osg", name)
        if os.path.isfile(path):
            parse(path, comments, bases, free if name in included else None, spaces)
    others = {}
    for d, n in includes:
        if d != "osg":
            parse(os.path.join(root, d, n), others, bases, free, spaces)
    comments.update(others)
    namespaces = tuple(f"{d}::" for d in {"osg"} | {d for d, _ in includes})
    for key in list(comments):  # a class's own name is looked up with its namespace
        if not key.startswith(namespaces):
            del comments[key]
    inherit(comments, bases, spaces)
    wanted = set(re.findall(r'(?:osg\w*)::(\w+)(?= \*|")', open(type_table).read()))
    keep = {k: v for k, v in comments.items() if k in free or k.count("::") == 2 and k.split("::")[1] in wanted}
    texts = sorted({"\n".join(v) for v in keep.values()})
    index = {t: i for i, t in enumerate(texts)}
    with open(out, "w") as f:
        f.write("// Generated by tools/gen_docs.py from OpenSceneGraph's headers: do not edit.\n")
        f.write("static const char *const osg_comment_texts[] = {\n")
        f.writelines(f"    {c_string(t)},\n" for t in texts)
        f.write("};\n// Sorted by member.\nstatic const struct { const char *member; int text; } osg_comments[] = {\n")
        f.writelines(f"    {{{c_string(k)}, {index[chr(10).join(keep[k])]}}},\n" for k in sorted(keep))
        f.write("};\n")


if __name__ == "__main__":
    main(*sys.argv[1:5])
