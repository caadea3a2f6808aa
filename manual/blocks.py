"""The computed blocks of the chapters."""

import dataclasses
import pathlib
import re
import shutil
import tempfile

import markdown

import settings
import writing
from writing import Mistake, escape

TYPES = ("NONE", "DOS", "RANGES", "SUBSETS", "PERL", "POSIX")


@dataclasses.dataclass
class Block:
    """HTML, and what of it the contents list: (id, title, children)."""

    html: str
    contents: list = dataclasses.field(default_factory=list)


class Blocks:
    """Makes the blocks by their names."""

    def __init__(self, ovprefs, reference, root):
        self._ovprefs = ovprefs
        self._reference = reference
        self._root = root
        self._makers = {"pages": self._pages, "index": self._index, "types": self._types, "try-out": self._try_out,
                        "console": self._console, "example": self._example, "before-and-after": self._before_and_after,
                        "document": self._document, "text": self._text, "batch": self._text, "c": self._text,
                        "picture": self._picture}

    def variables(self):
        """All names that are settings."""
        return set(self._reference.variables())

    def make(self, name, argument, body):
        """The block of that name."""
        if name not in self._makers:
            raise Mistake(f"there is no block called {name}")
        return self._makers[name](argument, body)

    def _markdown(self, text):
        return writing.link_variables(markdown.markdown(text, output_format="html"), self.variables())

    def _pages(self, _argument, _body):
        self._reference.check_intros()
        pages = self._reference.pages()
        html = "\n".join(settings.page_html(self._reference, page, self._markdown) for page in pages)
        return Block(html, [(f"page-{page.slug}", escape(page.title), []) for page in pages])

    def _index(self, _argument, _body):
        items = [f'<li><a href="#{name}"><code>{name}</code></a></li>' for name in sorted(self.variables())]
        return Block('<ul class="index">\n' + "\n".join(items) + "\n</ul>")

    def _types(self, _argument, body):
        """One line of explanation for each type; the captions are those of the drop-down list."""
        lines = [line for line in body.splitlines() if line.strip()]
        choices = self._reference.setting("_ORTHOVAL_WILDCARD_TYPE")["values"]
        if len(lines) != len(choices):
            raise Mistake(f"{len(lines)} explanations for {len(choices)} types")
        rows = [(f"<code>{escape(choice['value'])}</code>", escape(choice["meaning"]), self._inline(line))
                for choice, line in zip(choices, lines)]
        return Block(writing.table(("Value", "Caption", "What a pattern means"), rows))

    def _inline(self, line):
        return re.sub(r"^<p>|</p>$", "", markdown.markdown(line, output_format="html"))

    def _try_out(self, _argument, body):
        """Lines of TYPE, pattern, text and remark, separated by tabs; the result is computed."""
        words = {True: "Match", False: "No Match", None: "Syntax Error in Regex: 32768"}
        rows = []
        for line in body.splitlines():
            fields = line.split("\t")
            if len(fields) != 4 or fields[0] not in TYPES:
                raise Mistake(f"the try-out '{line}' is not TYPE, pattern, text and remark")
            kind, template, text, remark = fields
            result = self._ovprefs.matches(kind, template, text)
            rows.append((str(TYPES.index(kind)), f"<code>{escape(template)}</code>", f"<code>{escape(text)}</code>",
                         words[result], self._inline(remark)))
        return Block(writing.table(("Type", "Pattern", "Text", "Result", "Remark"), rows))

    def _console(self, _argument, body):
        """Commands after '$ ', run in a folder with the examples; the output follows each.

        Lines after '% ' are run first, and not shown.
        """
        commands = [line.removeprefix("$ ") for line in body.splitlines() if line.startswith("$ ")]
        hidden = [line.removeprefix("% ") for line in body.splitlines() if line.startswith("% ")]
        with tempfile.TemporaryDirectory(prefix="make-manual-") as work:
            folder = pathlib.Path(work) / "standards"
            shutil.copytree(self._root / "manual" / "examples", folder)
            shutil.copyfile(self._root / "samples" / "defaults.cfg", folder / "defaults.cfg")
            self._ovprefs.session(hidden, folder, codes=(0,))
            answers = self._ovprefs.session(commands, folder)
        lines = [f'<b class="command">{escape(command)}</b>\n{escape(output)}' for command, output in answers]
        return Block(f'<pre class="console" tabindex="0" role="group" aria-label="Commands and their output">'
                     f"{''.join(lines)}</pre>")

    def _text(self, _argument, body):
        return Block(f'<pre tabindex="0" role="group" aria-label="Listing">{escape(body)}</pre>')

    def _example(self, argument, _body):
        text = (self._root / "manual" / "examples" / argument).read_text(encoding="utf-8")
        return self._text("", text)

    def _before_and_after(self, argument, _body):
        """A file and what Save makes of it, without the settings that it adds."""
        before = (self._root / "manual" / "examples" / argument).read_text(encoding="utf-8")
        kept, added = self._without_added(before, self._ovprefs.saved(before))
        note = f"... and {added} more settings that the file did not have, each below its help text ...\n"
        return Block(f"<figure><figcaption>Before: the hand-written file</figcaption>{self._text('', before).html}"
                     "</figure>\n"
                     f"<figure><figcaption>After Save</figcaption>{self._text('', kept + note).html}</figure>")

    def _without_added(self, before, after):
        """The lines after Save without those that set what the file did not have before, and their comments."""
        kept, comment, added = [], [], set()
        for line in after.splitlines(keepends=True):
            comment.append(line)
            assigned = re.match(r"(\w+) [=><+:]", line)
            if not assigned:
                # The heading ends with the first empty line.
                if not kept and line == "\n":
                    kept, comment = comment, []
                continue
            if settings.lines_of(before, assigned[1]):
                kept += comment
            else:
                added.add(assigned[1])
            comment = []
        return "".join(kept) + "\n", len(added)

    def _document(self, argument, _body):
        """A section of one of the documents: its path, '#' and the section's title."""
        path, _, title = argument.partition("#")
        text = (self._root / path).read_text(encoding="utf-8")
        found = re.search(rf"^## {re.escape(title)}\n(.*?)(?=^## |\Z)", text, re.MULTILINE | re.DOTALL)
        if not found:
            raise Mistake(f"{path} has no section '{title}'")
        html = markdown.markdown(found[1], extensions=["tables"], output_format="html")
        return Block(f'<div class="document">\n{writing.dress_tables(html)}\n</div>')

    def _picture(self, argument, _body):
        name, _, words = argument.partition(" ")
        return Block(f'<figure><img src="pictures/{name}" loading="lazy" alt="{escape(words)}"></figure>')
