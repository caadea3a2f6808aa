"""Makes the manual: one HTML page with its style sheet, script and pictures.

Settings, captions and help texts come from 'ovprefs reference', defaults and examples of saving
from 'ovprefs preview', results of patterns from 'ovprefs match'. Only the chapters are written by
hand. The same sources give the same bytes.
"""

import argparse
import pathlib
import re
import shutil
import sys
import tempfile

import blocks
import companion
import settings
import writing

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent
STATIC = ("manual.css", "manual.js")


def read_chapters(sources, replacements):
    """The chapters in order, as (HTML, contents) pairs."""
    chapters = []
    for path in sorted((HERE / "chapters").glob("*.md")):
        try:
            chapters.append(writing.convert(path.read_text(encoding="utf-8"), sources, replacements))
        except writing.Mistake as mistake:
            raise writing.Mistake(f"manual/chapters/{path.name}: {mistake}") from mistake
    return chapters


def contents_list(entries, indent=""):
    """The nested list of the contents. Entries: (id, title, children)."""
    lines = [f"{indent}<ul>"]
    for anchor, title, children in entries:
        link = f'<a href="#{anchor}">{title}</a>'
        if children:
            lines += [f"{indent}<li>{link}", contents_list(children, indent + " "), f"{indent}</li>"]
        else:
            lines.append(f"{indent}<li>{link}</li>")
    return "\n".join(lines + [f"{indent}</ul>"])


def check_links(html):
    """Every anchor exists once, and every link inside the page leads to one."""
    anchors = re.findall(r'\sid="([^"]+)"', html)
    twice = sorted({anchor for anchor in anchors if anchors.count(anchor) > 1})
    if twice:
        raise writing.Mistake(f"anchors that exist twice: {', '.join(twice)}")
    missing = sorted(set(re.findall(r'href="#([^"]*)"', html)) - set(anchors))
    if missing:
        raise writing.Mistake(f"links without an anchor: {', '.join(missing)}")


def check_settings(html, reference):
    """Every variable has its anchor, and every page its picture."""
    for variable in reference.variables():
        if f'id="{variable}"' not in html:
            raise writing.Mistake(f"{variable} is missing")
    for page in reference.pages():
        if f'src="pictures/{page.slug}.png"' not in html:
            raise writing.Mistake(f"the picture of {page.title} is missing")


def copy_pictures(html, folder):
    """Copies each picture that the page shows."""
    pictures = folder / "pictures"
    pictures.mkdir(parents=True)
    for name in sorted(set(re.findall(r'src="pictures/([^"]+)"', html))):
        source = ROOT / "docs" / "pages" / name
        if not source.exists():
            source = ROOT / "docs" / name
        if not source.exists():
            raise writing.Mistake(f"there is no picture docs/pages/{name} and no docs/{name}")
        shutil.copyfile(source, pictures / name)


def make(program, folder):
    """Writes the manual to the folder, which must not exist."""
    ovprefs = companion.Companion(program)
    reference = settings.Reference(ovprefs, ROOT)
    sources = blocks.Blocks(ovprefs, reference, ROOT)
    replacements = {"version": ovprefs.version(), "number": ovprefs.version().split()[0],
                    "settings": str(len(reference.variables())),
                    "pages": str(len(reference.pages()))}
    chapters = read_chapters(sources, replacements)
    page = (HERE / "manual.html").read_text(encoding="utf-8")
    html = (page.replace("{{contents}}", contents_list([entry for _, entries in chapters for entry in entries]))
            .replace("{{chapters}}", "\n".join(text for text, _ in chapters)))
    html = writing.fill_in(html, replacements)
    check_links(html)
    check_settings(html, reference)
    folder.mkdir(parents=True)
    (folder / "index.html").write_text(html, encoding="utf-8", newline="\n")
    for name in STATIC:
        shutil.copyfile(HERE / name, folder / name)
    copy_pictures(html, folder)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", help="ovprefs, built for this machine")
    parser.add_argument("folder", type=pathlib.Path, help="the folder to make; it is replaced")
    arguments = parser.parse_args()
    arguments.folder.parent.mkdir(parents=True, exist_ok=True)
    # A manual that cannot be finished leaves the previous one as it is.
    with tempfile.TemporaryDirectory(dir=arguments.folder.parent, prefix=".manual-") as work:
        try:
            make(arguments.program, pathlib.Path(work) / "manual")
        except (writing.Mistake, companion.Failure) as problem:
            sys.exit(f"make-manual: {problem}")
        shutil.rmtree(arguments.folder, ignore_errors=True)
        (pathlib.Path(work) / "manual").rename(arguments.folder)


if __name__ == "__main__":
    main()
