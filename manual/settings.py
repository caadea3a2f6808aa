"""The pages and their settings."""

import dataclasses
import re

import writing
from writing import escape, slug

# A file without any setting: what Save adds to it are the defaults.
NO_SETTINGS = "# An office's file\n\nHR_OFFICE = York\n"
# So many lines of an example are enough to see its form.
EXAMPLE_LINES = 4


@dataclasses.dataclass
class Page:
    """A page of the dialog."""

    title: str
    settings: list

    @property
    def slug(self):
        """As its picture and its anchor are called."""
        return slug(self.title)


def lines_of(text, variable):
    """The lines of a configuration file that set the variable."""
    return [line for line in text.splitlines() if re.match(rf"{variable} [=><+:]( |$)", line)]


class Reference:
    """Everything that is known about the settings."""

    def __init__(self, ovprefs, root):
        facts = ovprefs.reference()
        self._settings = facts["settings"]
        self._older = facts["olderVariables"]
        self._saved = ovprefs.saved(NO_SETTINGS)
        self._sample = (root / "samples" / "defaults.cfg").read_text(encoding="utf-8")
        self._intros = self._read_intros(root / "manual" / "pages.md")

    def variables(self):
        """The names of all variables, those too that are only read."""
        return [entry["variable"] for entry in self._settings + self._older]

    def setting(self, variable):
        """The facts about one setting."""
        return next(entry for entry in self._settings if entry["variable"] == variable)

    def pages(self):
        """The pages in the order of the category list."""
        pages = {}
        for entry in self._settings:
            pages.setdefault(entry["page"], Page(entry["page"], [])).settings.append(entry)
        return list(pages.values())

    def intro(self, page):
        """What the hand-written introduction says about the page, as Markdown."""
        if page.title not in self._intros:
            raise writing.Mistake(f"manual/pages.md has no introduction of {page.title}")
        return self._intros[page.title]

    @staticmethod
    def _read_intros(path):
        parts = re.split(r"^## (.+)$", path.read_text(encoding="utf-8"), flags=re.MULTILINE)
        return dict(zip(parts[1::2], (text.strip() for text in parts[2::2])))

    def check_intros(self):
        """No introduction belongs to a page that does not exist."""
        unknown = set(self._intros) - {page.title for page in self.pages()}
        if unknown:
            raise writing.Mistake(f"manual/pages.md introduces pages that do not exist: {', '.join(sorted(unknown))}")

    def example(self, variable):
        """Lines of the sample that set the variable."""
        lines = lines_of(self._sample, variable)
        if not lines:
            raise writing.Mistake(f"samples/defaults.cfg has no {variable}")
        return lines[:EXAMPLE_LINES]

    def added(self, variable):
        """The line that Save adds to a file without the setting; nothing when it adds none."""
        return next(iter(lines_of(self._saved, variable)), None)

    def older_of(self, page):
        """The variables that the page only reads."""
        return [entry["variable"] for entry in self._older if entry["page"] == page.title]


def caption_of(setting):
    """What the user reads at the control; the heading of the help text where that is nothing."""
    return (setting["caption"] or setting["heading"]).strip()


def _number(value):
    return f"{value:g}"


def _values(setting):
    kind = setting["kind"]
    if kind == "flag":
        return "Check box: <code>1</code> is on, <code>0</code> is off."
    parts = []
    if setting["values"]:
        items = "".join(f"<li>{_value(choice['value'])} {escape(choice['meaning'])}</li>"
                        for choice in setting["values"])
        parts.append(f'<ul class="values">{items}</ul>')
        if setting["minimum"] is not None and setting["minimum"] < 0:
            parts.append("<p>Negative when the user may not change it.</p>")
        elif kind != "choice":
            parts.append("<p>Or any other text.</p>")
    elif setting["minimum"] is not None:
        parts.append(f"A number from {_number(setting['minimum'])} to {_number(setting['maximum'])}.")
    elif kind == "number":
        parts.append("A number.")
    elif kind != "list":
        parts.append({"path": "A path or other text. Save writes it without quotes.", "text": "Text."}[kind])
    if setting["separator"]:
        parts.append(_list_text(setting))
    return " ".join(parts)


def _value(value):
    return f"<code>{escape(value)}</code>" if value else "<em>empty</em>"


def _list_text(setting):
    text = f"A list. Its entries are separated by <code>{escape(setting['separator'])}</code>"
    if setting["fields"] > 1:
        text += (f", the {setting['fields']} fields of an entry by "
                 f"<code>{escape(setting['fieldSeparator'])}</code>")
    return text + "."


def _default(setting, added):
    if not setting["written"]:
        return "Save neither adds nor changes this variable."
    if added is None:
        return "Save adds nothing to a file without this setting."
    value = added.split(" ", 2)[2].strip('"')
    meaning = next((choice["meaning"] for choice in setting["values"] or [] if choice["value"] == value), None)
    shown = escape(meaning.capitalize() if setting["kind"] == "flag" else meaning) if meaning else _value(value)
    return (f'{shown}. To a file without this setting Save adds '
            f"<code>{escape(added.strip())}</code>")


def _conditions(setting, page):
    anchors = {caption_of(other): other["variable"] for other in page.settings}

    def link(match):
        anchor = anchors.get(match[1].strip())
        text = f"“{escape(match[1].strip())}”"
        return f'<a href="#{anchor}">{text}</a>' if anchor else text

    texts = [re.sub(r'"([^"]+)"', link, condition) for condition in setting["enabledWhen"] or []]
    return " and ".join(texts)


def _help(setting):
    """Paragraphs of the help text; its examples, which begin with a tab, as they are."""
    parts = []
    for line in setting["help"].replace("\r\n", "\n").replace("\t:", ":").split("\n"):
        if line.startswith("\t") and parts and parts[-1][0] == "pre":
            parts[-1][1].append(line[1:])
        elif line.startswith("\t"):
            parts.append(("pre", [line[1:]]))
        elif line.strip():
            parts.append(("p", [line]))
    return "\n".join(f"<{tag}>{escape(chr(10).join(lines))}</{tag}>" for tag, lines in parts)


def _setting(reference, setting, page):
    variable = setting["variable"]
    facts = [("Values", _values(setting)), ("Default", _default(setting, reference.added(variable)))]
    if setting["enabledWhen"]:
        facts.append(("Enabled when", _conditions(setting, page) + "."))
    if f"\t{variable} " not in setting["help"]:
        example = "\n".join(reference.example(variable))
        facts.append(("Example", f"<pre>{escape(example)}</pre>"))
    items = "\n".join(f"<dt>{name}</dt><dd>{text}</dd>" for name, text in facts)
    return (f'<section class="setting" id="{variable}">\n<h4>{escape(caption_of(setting))}</h4>\n'
            f'<p class="variable"><a href="#{variable}"><code>{variable}</code></a></p>\n'
            f'<div class="help">\n{_help(setting)}\n</div>\n<dl class="facts">\n{items}\n</dl>\n</section>')


def _older(reference, variable, intros):
    text = intros.get(variable)
    if not text:
        raise writing.Mistake(f"manual/pages.md does not explain {variable}")
    example = escape("\n".join(reference.example(variable)))
    return (f'<section class="setting" id="{variable}">\n<h4>An older variable</h4>\n'
            f'<p class="variable"><a href="#{variable}"><code>{variable}</code></a></p>\n'
            f'<div class="help">\n{text}\n</div>\n<dl class="facts">\n<dt>Default</dt>'
            f"<dd>The page only reads this variable. Save neither adds nor changes it.</dd>\n"
            f"<dt>Example</dt><dd><pre>{example}</pre></dd>\n</dl>\n</section>")


def page_html(reference, page, convert):
    """A page with its picture and settings. 'convert' makes HTML of Markdown."""
    intro, *older = re.split(r"^### (\S+)$", reference.intro(page), flags=re.MULTILINE)
    explained = {name: convert(text) for name, text in zip(older[0::2], older[1::2])}
    unknown = set(explained) - set(reference.older_of(page))
    if unknown:
        raise writing.Mistake(f"manual/pages.md explains what {page.title} does not read: {', '.join(unknown)}")
    parts = [f'<section class="page" aria-labelledby="page-{page.slug}">',
             f'<h3 id="page-{page.slug}">{escape(page.title)}</h3>', convert(intro),
             f'<figure><img src="pictures/{page.slug}.png" width="844" height="673" loading="lazy" '
             f'alt="The page {escape(page.title)} in the dialog, with the sample files open"></figure>']
    parts += [_setting(reference, setting, page) for setting in page.settings]
    parts += [_older(reference, variable, explained) for variable in reference.older_of(page)]
    return "\n".join(parts + ["</section>"])
