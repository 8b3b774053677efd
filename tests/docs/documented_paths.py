"""Every file and folder that a document names exists.

Usage: documented_paths.py ROOT
"""

import pathlib
import re
import sys


def named_paths(text):
    """The words in backticks, commands included, and the links that look like a path of this tree."""
    for words in re.findall(r"`+([^`]+)`+", text):
        for word in words.split():
            if "/" in word and re.fullmatch(r"[\w.-]+(?:/[\w.-]+)*/?", word):
                yield word
    for name in re.findall(r"\]\(([^)#:]+)\)", text):
        yield name


def main():
    root = pathlib.Path(sys.argv[1])
    made = ("build/", "Downloads/")  # by building, or by Lumaport
    checked, missing = 0, []
    for document in [*root.glob("*.md"), *root.glob("docs/*.md")]:
        for name in named_paths(document.read_text(encoding="utf-8")):
            if name.startswith(made):
                continue
            checked += 1
            if not (root / name).exists() and not (document.parent / name).exists():
                missing.append(f"{document.name}: {name}")
    if missing or checked < 20:
        sys.exit("\n".join(missing) or f"only {checked} paths found; does the pattern still fit?")


if __name__ == "__main__":
    main()
