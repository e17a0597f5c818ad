#!/usr/bin/env python3
"""Checks that tests/edge_cases.md names tests for each of its cases, that all of them exist, and that Windows runs one
of them at least.

    tools/check_edge_cases.py
"""
import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parent.parent
page = root / "tests" / "edge_cases.md"


def native_sources() -> set[pathlib.Path]:
    """Sources that only the native build compiles."""
    sources = set()
    for lists in (root / "tests").rglob("CMakeLists.txt"):
        words = re.findall(r"if\(NOT WIN32\)|endif\(\)|[\w.]+", lists.read_text(encoding="utf-8"))
        kind, outer = "", ""
        for word in words:
            if word.startswith("if("):
                outer = "NATIVE"
            elif word == "endif()":
                outer = ""
            elif word in ("PORTABLE", "WINDOWS", "NATIVE"):
                kind = word
            elif word.endswith(".cpp") and "NATIVE" in (kind, outer):
                sources.add(lists.parent / word)
    return sources


def names_in(text: str) -> list[str]:
    return [".".join(match) for match in re.findall(r"^(?:TYPED_)?TEST(?:_[FP])?\((\w+),\s*(\w+)\)", text, re.M)]


def tests_of_the_sources() -> dict[str, bool]:
    """Whether Windows runs them, by name."""
    native = native_sources()
    names = {}
    for source in (root / "tests").rglob("*.cpp"):
        text = source.read_text(encoding="utf-8")
        on_windows = names_in(re.sub(r"^#ifndef _WIN32$.*?^#endif", "", text, flags=re.M | re.S))
        for name in names_in(text):
            names[name] = source not in native and name in on_windows
    return names


def cases_of_the_page() -> list[tuple[int, str, list[str]]]:
    """Line, text and tests of each case."""
    cases = []
    for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("- "):
            cases.append((number, line[2:], []))
        elif cases and line.startswith("  `"):
            cases[-1][2].extend(re.findall(r"`([^`]*)`", line))
    return cases


def main() -> int:
    known = tests_of_the_sources()
    cases = cases_of_the_page()
    faults = [f"{page.name}:{number}: no test: {text}" for number, text, tests in cases if not tests]
    faults += [f"{page.name}:{number}: Windows runs no test: {text}"
               for number, text, tests in cases if tests and not any(known.get(test) for test in tests)]
    faults += [f"{page.name}:{number}: there is no {test}" for number, _, tests in cases for test in tests if test not in known]
    print("\n".join(faults) or f"{len(cases)} cases, {len({t for _, _, tests in cases for t in tests})} tests")
    return 1 if faults or not cases else 0


if __name__ == "__main__":
    sys.exit(main())
