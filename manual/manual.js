// The search over all settings and chapters. Without a script it is not shown.
"use strict";

(function () {
    // More results than anybody reads only slow the page.
    const mostResults = 30;

    // Words as they are compared: "_ORTHOVAL_CHECK_TEXT" has the words orthoval, check and text.
    function words(text) {
        return text.toLowerCase().split(/[^\p{L}\p{N}]+/u).filter(Boolean);
    }

    function entryOfSetting(section) {
        const variable = section.id;
        const caption = section.querySelector("h4").textContent.trim();
        const page = section.closest(".page").querySelector("h3").textContent;
        const help = section.querySelector(".help").textContent;
        return {anchor: variable, title: caption, variable: variable, place: page, help: words(help).join(" ")};
    }

    // The text below a heading, up to the next one.
    function textBelow(heading) {
        const texts = [];
        for (let next = heading.nextElementSibling; next && !next.matches("h2, h3, section"); next = next.nextElementSibling) {
            texts.push(next.textContent);
        }
        return words(texts.join(" ")).join(" ");
    }

    function entryOfHeading(heading) {
        const chapter = heading.closest("section:not(.page)").querySelector("h2").textContent;
        return {anchor: heading.id, title: heading.textContent, variable: "", place: chapter, help: textBelow(heading)};
    }

    function makeIndex() {
        const settings = Array.from(document.querySelectorAll(".setting"), entryOfSetting);
        const headings = Array.from(document.querySelectorAll("main h2[id], main h3[id]"), entryOfHeading);
        for (const entry of settings.concat(headings)) {
            entry.names = [words(entry.variable).join(" "), words(entry.title).join(" ")];
            entry.text = entry.names.concat(words(entry.place), entry.help).join(" ");
        }
        return settings.concat(headings);
    }

    // Lower is better; undefined if a word of the query is missing.
    function rank(entry, query) {
        if (!query.every(word => entry.text.includes(word))) {
            return undefined;
        }
        const phrase = query.join(" ");
        const tests = [name => name === phrase, name => name.startsWith(phrase), name => name.includes(phrase),
            name => query.every(word => name.includes(word))];
        const found = tests.findIndex(test => entry.names.some(test));
        return found < 0 ? tests.length : found;
    }

    function find(index, text) {
        const query = words(text);
        if (query.length === 0) {
            return [];
        }
        return index.map(entry => ({entry: entry, rank: rank(entry, query)}))
            .filter(hit => hit.rank !== undefined)
            .sort((one, other) => one.rank - other.rank)
            .map(hit => hit.entry);
    }

    function element(name, text) {
        const made = document.createElement(name);
        made.textContent = text;
        return made;
    }

    function item(entry) {
        const link = element("a", entry.title);
        link.href = "#" + entry.anchor;
        const line = document.createElement("li");
        line.append(link);
        if (entry.variable) {
            line.append(element("code", entry.variable));
        }
        line.append(element("small", entry.place));
        return line;
    }

    function countText(query, count) {
        if (words(query).length === 0) {
            return "";
        }
        if (count > mostResults) {
            return count + " results, of which the first " + mostResults + " are shown";
        }
        return count === 1 ? "1 result" : (count || "No") + " results";
    }

    const form = document.querySelector(".search");
    const field = document.getElementById("search");
    const results = document.getElementById("search-results");
    const count = document.getElementById("search-count");
    const index = makeIndex();

    function show() {
        const found = find(index, field.value);
        results.replaceChildren(...found.slice(0, mostResults).map(item));
        count.textContent = countText(field.value, found.length);
    }

    form.hidden = false;
    field.addEventListener("input", show);
    // Enter and the button open the first result.
    form.addEventListener("submit", event => {
        event.preventDefault();
        const first = results.querySelector("a");
        if (first) {
            first.click();
        }
    });
    // Some browsers keep what was typed when the page is loaded again.
    show();
}());
