"""Markdown to HTML, with blocks that are computed.

Beside Markdown a chapter contains

    {{name}}         a fact, such as {{version}}
    `_ORTHOVAL_X`    a variable, which becomes a link to its setting
    ::name argument  on a line of its own: a computed block
    ```name          a computed block made from the lines up to the closing ```
"""

import html
import re

import markdown

FENCED = re.compile(r"^```(\w[\w-]*)[ ]*([^\n]*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
COMPUTED = re.compile(r"^::(\w[\w-]*)[ ]*(.*)$", re.MULTILINE)
VARIABLE = re.compile(r"<code>(_?ORTHOVAL_[A-Z0-9_]+)</code>")


class Mistake(Exception):
    """A chapter that cannot be converted, with the reason."""


def escape(text):
    """The text as HTML, also within quotes."""
    return html.escape(text, quote=True)


def slug(title):
    """A title as part of an address: 'File Paths' becomes 'file-paths'."""
    return re.sub(r"[^a-z0-9]+", "-", title.lower()).strip("-")


def fill_in(text, replacements):
    """Replaces {{name}}."""
    def replace(match):
        if match[1] not in replacements:
            raise Mistake(f"there is no {{{{{match[1]}}}}}")
        return replacements[match[1]]
    return re.sub(r"\{\{(\w+)\}\}", replace, text)


def table(head, rows):
    """A table that scrolls by itself where it is too wide. The cells are HTML."""
    lines = ['<div class="wide" tabindex="0" role="group" aria-label="Table">', f'<table class="{"many" if len(head) > 3 else "few"}">',
             "<thead><tr>" + "".join(f'<th scope="col">{cell}</th>' for cell in head) + "</tr></thead>", "<tbody>"]
    lines += ["<tr>" + "".join(f"<td>{cell}</td>" for cell in row) + "</tr>" for row in rows]
    return "\n".join(lines + ["</tbody>", "</table>", "</div>"])


def _contents(tokens, extra):
    """The converter's contents as (id, title, children), two levels deep."""
    entries = []
    for chapter in tokens:
        children = [(token["id"], token["name"], []) for token in chapter["children"]]
        entries.append((chapter["id"], chapter["name"], children + extra))
    return entries


def link_variables(text, known):
    """Makes links of the variables in code; fails if there is no such setting."""
    def link(match):
        if match[1] not in known:
            raise Mistake(f"there is no variable {match[1]}")
        return f'<a href="#{match[1]}">{match[0]}</a>'
    return VARIABLE.sub(link, text)


def dress_tables(text):
    """Lets the tables of converted Markdown scroll by themselves."""
    text = text.replace("<table>", '<div class="wide" tabindex="0" role="group" aria-label="Table">\n<table>')
    return text.replace("</table>", "</table>\n</div>").replace("<th>", '<th scope="col">')


def convert(source, blocks, replacements):
    """A chapter as (HTML, contents). The computed blocks come from 'blocks'."""
    computed = []
    entries = []

    def keep(match):
        body = match[3] if match.re is FENCED else ""
        block = blocks.make(match[1], match[2].strip(), body)
        computed.append(block.html)
        entries.extend(block.contents)
        return f"\n\nCOMPUTED{len(computed) - 1}BLOCK\n\n"

    text = COMPUTED.sub(keep, FENCED.sub(keep, fill_in(source, replacements)))
    converter = markdown.Markdown(extensions=["tables", "attr_list", "def_list", "toc"],
                                  extension_configs={"toc": {"baselevel": 2}}, output_format="html")
    body = dress_tables(link_variables(converter.convert(text), blocks.variables()))
    for number, block in enumerate(computed):
        body = body.replace(f"<p>COMPUTED{number}BLOCK</p>", block)
    if "BLOCK</p>" in body or len(converter.toc_tokens) != 1:
        raise Mistake("a chapter has one title, and its computed blocks are paragraphs of their own")
    chapter = converter.toc_tokens[0]["id"]
    return (f'<section aria-labelledby="{chapter}">\n{body}\n</section>', _contents(converter.toc_tokens, entries))
