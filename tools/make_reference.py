#!/usr/bin/env python3
"""Writes docs/reference.md from the docstrings of include/widgets/widgets.h.

usage: make_reference.py HEADER OUTPUT           writes the reference
       make_reference.py --check HEADER OUTPUT   fails if the reference isn't what the header gives, or if a
                                                 function, constant or record of the header has no docstring
"""
import re
import sys

INTRO = """# Reference

Everything that a host of `widgets.dll` can use, as `widgets/widgets.h` tells it. This page is written by
`tools/make_reference.py` from the header; change the docstring there and run the script.
"""

FUNCTION = re.compile(r"^[A-Za-z_][\w \*]*?[ \*](?:WINAPI|CALLBACK|__cdecl) (\w+)\(")
CALLBACK = re.compile(r"^typedef [\w \*]+\(CALLBACK\* ?(\w+)\)")
DEFINE = re.compile(r"^#define (\w+) (0x[0-9A-Fa-f]+|\d+)$")
RECORD = re.compile(r"^(?:typedef )?struct (\w+) \{")
FIELD = re.compile(r"^\s+([\w \*]+?)\s*\*?\s*(\w+)(\[\d+\])?;\s*/\*\*< (.*?) \*/")
SKIPPED = {"WIDGETS_WIDGETS_H"}


def plain(comment):
    """The text of a docstring, without its frame, in one piece per paragraph or tag."""
    lines = [re.sub(r"^\s*\*? ?", "", line).rstrip() for line in comment.split("\n")]
    text = "\n".join(lines).strip()
    text = re.sub(r"\s*@return ", "\n\n*Result:* ", text)
    text = re.sub(r"\s*@note ", "\n\n*Note:* ", text)
    text = re.sub(r"\s*@param ((?:\w+, )*\w+)\s+", lambda m: "\n- `" + m.group(1).replace(", ", "`, `") + "`: ", text)
    return re.sub(r"[ \t]*\n[ \t]+", " ", text)


def entries(header):
    """Walks the header in its order: a kind (section, item, define, record), name, detail and docstring each."""
    lines = header.split("\n")
    pending = None
    i = 0
    while i < len(lines):
        line = lines[i]
        if line.startswith("/**") or line.startswith("/*"):
            start = i
            while "*/" not in lines[i]:
                i += 1
            block = "\n".join(lines[start:i + 1])
            inner = re.sub(r"^/\*\*?|\*/$", "", block.strip()).strip("\n ")
            if block.startswith("/**"):
                pending = plain(inner)
            else:
                yield "section", plain(inner), None, None
            i += 1
            continue
        match = FUNCTION.match(line) or CALLBACK.match(line)
        if match:
            start = i
            while ";" not in lines[i]:
                i += 1
            declaration = re.sub(r"\s+", " ", " ".join(lines[start:i + 1])).strip()
            yield "item", match.group(1), declaration, pending
            pending = None
        elif DEFINE.match(line):
            match = DEFINE.match(line)
            if match.group(1) not in SKIPPED:
                yield "define", match.group(1), match.group(2), pending
            pending = None
        elif RECORD.match(line):
            name = RECORD.match(line).group(1)
            fields = []
            i += 1
            while not lines[i].startswith("}"):
                field = FIELD.match(lines[i])
                fields.append((field.group(2), field.group(4)) if field else (lines[i].strip(), None))
                i += 1
            yield "record", name, fields, pending
            pending = None
        i += 1


def reference(header):
    out = [INTRO]
    missing = []
    for kind, name, detail, doc in entries(header):
        if kind == "section":
            title, _, rest = name.partition("\n")
            out.append(f"\n## {title}\n" + (f"\n{rest.strip()}\n" if rest.strip() else ""))
            continue
        if not doc:
            missing.append(name)
            doc = ""
        if kind == "define":
            out.append(f"- `{name}` ({detail}): {' '.join(doc.split())}")
        elif kind == "item":
            out.append(f"\n### {name}\n\n```c\n{detail}\n```\n\n{doc}\n")
        else:
            out.append(f"\n### {name}\n\n{doc}\n")
            for field, meaning in detail:
                if meaning is None:
                    missing.append(f"{name}.{field}")
                out.append(f"- `{field}`: {meaning}")
    return "\n".join(out).rstrip() + "\n", missing


def main(arguments):
    check = arguments[:1] == ["--check"]
    if len(arguments) != (3 if check else 2):
        sys.exit(__doc__)
    with open(arguments[-2], encoding="utf-8") as header:
        text, missing = reference(header.read())
    if missing:
        sys.exit("without a docstring in the header: " + ", ".join(missing))
    if not check:
        with open(arguments[-1], "w", encoding="utf-8", newline="\n") as out:
            out.write(text)
        return
    with open(arguments[-1], encoding="utf-8") as kept:
        if kept.read() != text:
            sys.exit(f"{arguments[-1]} isn't what the header gives; run tools/make_reference.py "
                     f"{arguments[-2]} {arguments[-1]}")


if __name__ == "__main__":
    main(sys.argv[1:])
