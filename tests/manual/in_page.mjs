// Functions that run inside the manual. Each returns a list of complaints, or of facts.

export function withoutPlace(variables) {
    return variables.filter(variable => {
        const section = document.getElementById(variable);
        return !section || !section.matches(".setting") ||
            section.querySelector(".variable").textContent !== variable;
    });
}

export function incompleteSettings(settings) {
    const plain = text => text.replace(/\s+/g, " ").trim();
    return settings.flatMap(setting => {
        const section = document.getElementById(setting.variable);
        const text = plain(section?.textContent ?? "");
        const expected = [setting.caption ?? setting.heading, setting.help.replaceAll("\t:", ":")];
        for (const choice of setting.values ?? []) {
            expected.push(setting.kind === "flag" ? choice.value : `${choice.value} ${choice.meaning}`);
        }
        for (const condition of setting.enabledWhen ?? []) {
            expected.push(condition.replace(/"([^"]*)"/g, (_, caption) => `“${caption.trim()}”`));
        }
        if (setting.minimum !== null && setting.values === null) {
            expected.push(`${setting.minimum} to ${setting.maximum}`);
        }
        const missing = expected.filter(part => !text.includes(plain(part)));
        if (section?.closest(".page")?.querySelector("h3").textContent !== setting.page) {
            missing.push(`the page ${setting.page}`);
        }
        const example = Array.from(section?.querySelectorAll("pre") ?? [], pre => pre.textContent);
        if (!example.some(lines => lines.includes(setting.variable))) {
            missing.push("an example");
        }
        return missing.map(part => `${setting.variable}: ${part}`);
    });
}

export function pagesWithoutPicture(titles) {
    const pages = Array.from(document.querySelectorAll(".page"));
    return titles.filter(title => !pages.some(page =>
        page.querySelector("h3").textContent === title && page.querySelector("img")?.alt.includes(title)));
}

export function pictures() {
    return Array.from(document.images, image => image.getAttribute("src"));
}

export async function picturesThatFail() {
    const failing = [];
    for (const image of document.images) {
        image.loading = "eager";
        await image.decode().catch(() => failing.push(image.src));
    }
    return failing;
}

// Types the query; the anchors of the results. The functions below call it by its name in the window.
export function search(query) {
    const field = document.getElementById("search");
    field.value = query;
    field.dispatchEvent(new Event("input"));
    return Array.from(document.querySelectorAll("#search-results a"), link => link.getAttribute("href").slice(1));
}

export function notFoundFirst(expected) {
    return expected.filter(({query, anchor}) => window.searchManual(query)[0] !== anchor).map(({query}) => query);
}

export function notFound(expected) {
    return expected.filter(({query, anchor}) => !window.searchManual(query).includes(anchor))
        .map(({query, anchor}) => `${query}: no ${anchor}`);
}

export function answersNothing(query) {
    const found = window.searchManual(query);
    const answer = document.getElementById("search-count").textContent;
    return found.length === 0 && answer === "No results" ? [] : [`${found.length} results, "${answer}"`];
}

export function brokenLinks() {
    const ids = Array.from(document.querySelectorAll("[id]"), element => element.id);
    const twice = ids.filter((id, place) => ids.indexOf(id) !== place).map(id => `${id} exists twice`);
    const known = new Set(ids);
    const broken = Array.from(document.querySelectorAll("a[href^='#']"), link => link.getAttribute("href").slice(1))
        .filter(anchor => !known.has(decodeURIComponent(anchor))).map(anchor => `no #${anchor}`);
    return twice.concat(broken);
}

export function files() {
    const named = Array.from(document.querySelectorAll("[src], link[href], a[href]"),
        element => element.getAttribute("src") ?? element.getAttribute("href"));
    return named.filter(name => !name.startsWith("#"));
}

// What is wider than the window and does not lie in something that scrolls by itself.
export function overflowing() {
    const width = document.documentElement.clientWidth;
    const scrolls = element => {
        for (let box = element; box; box = box.parentElement) {
            if (["auto", "scroll", "hidden"].includes(getComputedStyle(box).overflowX)) {
                return true;
            }
        }
        return false;
    };
    const wide = Array.from(document.body.querySelectorAll("*"))
        .filter(element => element.getBoundingClientRect().right > width + 0.5 && !scrolls(element.parentElement))
        .map(element => `${element.tagName} ${element.className} ${element.textContent.trim().slice(0, 60)}`);
    if (document.documentElement.scrollWidth > width) {
        wide.push(`the page is ${document.documentElement.scrollWidth} wide, the window ${width}`);
    }
    return wide;
}

export function lightSurfaces() {
    const selectors = ["html", "body", ".side", ".banner", "pre", ".search input"];
    return selectors.filter(selector => {
        const element = document.querySelector(selector);
        const [red, green, blue, opacity] = getComputedStyle(element).backgroundColor.match(/[\d.]+/g).map(Number);
        return opacity !== 0 && red + green + blue > 300;
    });
}

// Runs the rule "color-contrast", or the rules with the given tags without it.
export function runAxe({context, rules}) {
    const options = rules.includes("color-contrast") ? {runOnly: rules}
        : {runOnly: {type: "tag", values: rules}, rules: {"color-contrast": {enabled: false}}};
    return window.axe.run({include: [["html"]], ...context}, {...options, resultTypes: ["violations"]});
}
