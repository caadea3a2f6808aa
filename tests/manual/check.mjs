// Checks the manual in a browser: check.mjs FOLDER OVPREFS
//
// The variables come from the sample with every variable, captions and texts from the program.
// OV_MANUAL_TOOLS is the folder with the modules of package.json.

import {execFileSync} from "node:child_process";
import {existsSync, readFileSync, readdirSync} from "node:fs";
import {createRequire} from "node:module";
import {dirname, join, resolve} from "node:path";
import {fileURLToPath, pathToFileURL} from "node:url";

import * as inPage from "./in_page.mjs";

const require = createRequire(join(process.env.OV_MANUAL_TOOLS, "package.json"));
const puppeteer = require("puppeteer-core");
const {HtmlValidate} = require("html-validate");
const axeSource = readFileSync(require.resolve("axe-core/axe.min.js"), "utf8");

const [folder, program] = process.argv.slice(2).map(path => resolve(path));
const root = resolve(dirname(fileURLToPath(import.meta.url)), "../..");
const reference = JSON.parse(execFileSync(program, ["reference", "--format", "json"], {maxBuffer: 1 << 26}));
const sample = readFileSync(join(root, "samples", "defaults.cfg"), "utf8");
const variables = [...new Set([...sample.matchAll(/^(_?ORTHOVAL_\w+) [=><+:]/gm)].map(match => match[1]))];

const phone = {width: 360, height: 740};
const desk = {width: 1280, height: 900};
const paper = {width: 680, height: 960};

// In milliseconds: far more than a step needs, for a busy machine.
const patience = 600000;

// All rules but the contrast of colours.
const everyRule = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"];

let passed = 0;
let failed = 0;

// One check: it passes if there is nothing to complain about.
async function check(name, complaints) {
    let found;
    try {
        found = await complaints();
    } catch (error) {
        found = [error.stack];
    }
    if (found.length === 0) {
        passed += 1;
        return;
    }
    failed += 1;
    console.log(`check-manual: ${name}`);
    found.slice(0, 10).forEach(complaint => console.log(`  ${complaint}`));
    if (found.length > 10) {
        console.log(`  and ${found.length - 10} more`);
    }
}

async function open(browser, withScript) {
    const page = await browser.newPage();
    page.setDefaultTimeout(patience);
    await page.setViewport(desk);
    await page.setJavaScriptEnabled(withScript);
    await page.emulateMediaFeatures([{name: "prefers-color-scheme", value: "light"}]);
    await page.goto(pathToFileURL(join(folder, "index.html")).href);
    return page;
}

// Contrast takes long to compute, and the pages are made alike: one of them shows it for all.
async function accessible(page, rules) {
    await page.evaluate(axeSource);
    const options = {context: rules.includes("color-contrast") ? {exclude: [[".page ~ .page"]]} : {}, rules};
    const {violations} = await page.evaluate(inPage.runAxe, options);
    return violations.map(({id, help, nodes}) => `${id}: ${help}: ${nodes[0].html.slice(0, 120)}`);
}

// The document without the pages, and each page by itself: the validator's time grows with the square
// of the length.
function pieces() {
    const html = readFileSync(join(folder, "index.html"), "utf8");
    const [start, ...pages] = html.split(/(?=<section class="page")/);
    const end = pages[pages.length - 1].indexOf("</section>\n</section>\n<section");
    const rest = pages[pages.length - 1].slice(end + "</section>\n".length);
    pages[pages.length - 1] = pages[pages.length - 1].slice(0, end + "</section>\n".length);
    const frame = ["<!DOCTYPE html>\n<html lang=\"en\">\n<head><title>Page</title></head>\n<body>\n<h1>A</h1>\n<h2>B</h2>\n",
        "</body>\n</html>\n"];
    return [start + rest, ...pages.map(page => frame[0] + page + frame[1])];
}

function invalid() {
    const validator = new HtmlValidate({
        extends: ["html-validate:recommended"],
        // Anchors are the names of variables, most of which begin with "_".
        rules: {"no-trailing-whitespace": "off", "long-title": "off", "valid-id": ["error", {relaxed: true}]},
    });
    return pieces().flatMap((piece, number) => validator.validateStringSync(piece).results.flatMap(result =>
        result.messages.map(message => `piece ${number}, line ${message.line}: ${message.message} [${message.ruleId}]`)));
}

async function checkContents(page) {
    await check(`the sample has ${variables.length} variables, 177 are expected`,
        () => (variables.length === 177 ? [] : ["samples/defaults.cfg was not read as expected"]));
    await check("each variable has its place", () => page.evaluate(inPage.withoutPlace, variables));
    await check("each setting has its caption, texts, values and example",
        () => page.evaluate(inPage.incompleteSettings, reference.settings));
    await check("each page has its picture", () => page.evaluate(inPage.pagesWithoutPicture,
        [...new Set(reference.settings.map(setting => setting.page))]));
    await check("each picture loads", () => page.evaluate(inPage.picturesThatFail));
    await check("no picture is left over", async () => {
        const shown = new Set(await page.evaluate(inPage.pictures));
        return readdirSync(join(folder, "pictures")).filter(name => !shown.has(`pictures/${name}`));
    });
}

async function checkSearch(page) {
    await page.evaluate(`window.searchManual = ${inPage.search}`);
    await check("search finds each variable by its name",
        () => page.evaluate(inPage.notFoundFirst, variables.map(name => ({query: name, anchor: name}))));
    const captions = reference.settings.filter(setting => setting.caption)
        .map(setting => ({query: setting.caption, anchor: setting.variable}));
    await check("search finds each setting by its caption", () => page.evaluate(inPage.notFound, captions));
    await check("search finds a word of a help text", () => page.evaluate(inPage.notFound,
        [{query: "bilingual spreadsheet", anchor: "_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE"}]));
    await check("search finds a chapter", () => page.evaluate(inPage.notFound,
        [{query: "patterns", anchor: "patterns"}]));
    await check("search finds a word of a chapter and of a page's introduction", () => page.evaluate(inPage.notFound,
        [{query: "textconv", anchor: "git"}, {query: "place marker cell", anchor: "page-certifying"}]));
    await check("search says that it finds nothing", () => page.evaluate(inPage.answersNothing, "zzzz qqqq"));
    await check("Enter opens the first result", async () => {
        await page.evaluate(() => window.searchManual("_ORTHOVAL_USERS_FILE"));
        await page.focus("#search");
        await page.keyboard.press("Enter");
        const hash = await page.evaluate(() => location.hash);
        return hash === "#_ORTHOVAL_USERS_FILE" ? [] : [`the address ends in '${hash}'`];
    });
}

async function checkLinks(page) {
    await check("links and anchors", () => page.evaluate(inPage.brokenLinks));
    await check("files beside the page", async () => (await page.evaluate(inPage.files))
        .filter(name => /^[a-z]+:/.test(name) || !existsSync(join(folder, name))));
}

async function checkWithoutScript(browser) {
    const page = await open(browser, false);
    await check("readable without a script: no search field, all settings, all contents", async () => {
        const search = await page.$eval(".search", form => form.checkVisibility());
        const settings = await page.$$eval(".setting", sections =>
            sections.filter(section => section.checkVisibility()).length);
        return !search && settings === variables.length ? [] : [`search shown: ${search}, settings: ${settings}`];
    });
    await page.close();
}

async function checkWidth(page, name, size, media) {
    await page.setViewport(size);
    await page.emulateMediaType(media);
    await check(`nothing overflows: ${name}`, () => page.evaluate(inPage.overflowing));
}

async function run(browser) {
    const page = await open(browser, true);
    await checkContents(page);
    await checkSearch(page);
    await checkLinks(page);
    await check("valid HTML", invalid);
    await check("accessible: light colours, desk", async () =>
        [...await accessible(page, everyRule), ...await accessible(page, ["color-contrast"])]);
    await page.emulateMediaFeatures([{name: "prefers-color-scheme", value: "dark"}]);
    await check("dark colours are dark", () => page.evaluate(inPage.lightSurfaces));
    await check("accessible: dark colours", () => accessible(page, ["color-contrast"]));
    await checkWidth(page, "desk", desk, "screen");
    await checkWidth(page, "phone", phone, "screen");
    await checkWidth(page, "paper", paper, "print");
    await page.close();
    await checkWithoutScript(browser);
}

// Chromium refuses its sandbox to the superuser.
const options = process.getuid() === 0 ? ["--no-sandbox"] : [];
const browser = await puppeteer.launch(
    {executablePath: "/usr/bin/chromium", args: options, timeout: patience, protocolTimeout: patience});
try {
    await run(browser);
} finally {
    await browser.close();
}
console.log(`${passed} passed, ${failed} failed`);
process.exit(failed === 0 ? 0 : 1);
