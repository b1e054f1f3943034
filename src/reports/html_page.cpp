#include "reports/html_page.h"

namespace Hesperin {

const char* const PageStyle = R"css(
:root {
    color-scheme: light dark;
    --back: #f5f6f7;
    --card: #ffffff;
    --band: #f7f8fa;
    --text: #1c2128;
    --quiet: #5d6773;
    --line: #dfe3e8;
    --point: #4a7fb5;
    --high: #b8440b;
    --low: #6c48c0;
    --mark: #fff3c4;
    --wrong: #fdeceb;
}
@media (prefers-color-scheme: dark) {
    :root {
        --back: #14171b;
        --card: #1c2127;
        --band: #21272e;
        --text: #e4e8ec;
        --quiet: #9ba6b2;
        --line: #333b44;
        --point: #76a9dd;
        --high: #ff9a66;
        --low: #b9a0ff;
        --mark: #4a421b;
        --wrong: #3a2224;
    }
}
* { box-sizing: border-box; }
body {
    margin: 0;
    padding: clamp(1rem, 2.5vw, 2.25rem);
    background: var(--back);
    color: var(--text);
    font: 0.9375rem/1.5 system-ui, "Segoe UI", Roboto, "Noto Sans", sans-serif;
}
h1 { margin: 0 0 1rem; font-size: 1.625rem; font-weight: 650; line-height: 1.2; letter-spacing: -0.01em; }
h2 { margin: 0 0 0.5rem; font-size: 1.0625rem; font-weight: 650; }
p { margin: 0 0 0.75rem; color: var(--quiet); max-width: 62rem; }
footer { margin-top: 1.25rem; color: var(--quiet); font-size: 0.8125rem; }
section {
    min-width: 0;
    margin-bottom: 1.25rem;
    padding: 1rem 1.125rem 1.125rem;
    background: var(--card);
    border: 1px solid var(--line);
    border-radius: 10px;
}

/* The sums at the top. */
.sums { display: flex; flex-wrap: wrap; gap: 0.5rem 2.5rem; margin: 0 0 1.25rem; }
.sums div { display: flex; flex-direction: column-reverse; }
.sums dt { color: var(--quiet); font-size: 0.8125rem; }
.sums dd { margin: 0; font-size: 1.5rem; font-weight: 600; line-height: 1.2; font-variant-numeric: tabular-nums; }

/* The picture, drawn for three widths. */
.above { display: grid; column-gap: 1.25rem; align-items: start; }
.picture svg { display: none; width: 100%; height: auto; }
.picture svg.narrow { display: block; }
@media (min-width: 640px) {
    .picture svg.narrow { display: none; }
    .picture svg.middle { display: block; }
}
@media (min-width: 1100px) {
    .above { grid-template-columns: minmax(0, 1fr) auto; }
    .picture svg.middle { display: none; }
    .picture svg.wide { display: block; }
}
svg text { fill: var(--quiet); font-family: inherit; }
svg .tier { fill: var(--text); font-weight: 600; }
svg .name { fill: var(--text); }
svg rect { fill: var(--band); }
svg line { stroke: var(--line); stroke-dasharray: 3 3; }
svg line.zero { stroke: var(--quiet); stroke-dasharray: none; }
svg circle { fill: var(--point); stroke: var(--band); stroke-width: 0.6; cursor: pointer; }
svg circle.high { fill: var(--high); }
svg circle.low { fill: var(--low); }
svg circle:hover { stroke: var(--text); stroke-width: 1.5; }

/* Tables. */
table { border-collapse: separate; border-spacing: 0; font-variant-numeric: tabular-nums; }
th, td { padding: 0.25rem 0.75rem; border-bottom: 1px solid var(--line); text-align: right; }
th { font-weight: 600; color: var(--quiet); }
tbody tr:last-child > td { border-bottom: 0; }
.high td.off, td.high { color: var(--high); font-weight: 600; }
.low td.off, td.low { color: var(--low); font-weight: 600; }
.high td.off::before { content: "\25b2\00a0"; font-size: 0.7em; }
.low td.off::before { content: "\25bc\00a0"; font-size: 0.7em; }
.box { overflow: auto; max-height: 85vh; border: 1px solid var(--line); border-radius: 6px; overscroll-behavior-x: contain; }
.box:focus-visible { outline: 2px solid var(--point); outline-offset: 1px; }
#creatures { table-layout: fixed; font-size: 0.8125rem; line-height: 1.35; }
#creatures th, #creatures td { overflow: hidden; white-space: nowrap; text-overflow: ellipsis; }
#creatures th { position: sticky; top: 0; z-index: 2; padding: 0; background: var(--band); }
#creatures td { background: var(--card); }
#creatures th:nth-child(2), #creatures td:nth-child(2) { position: sticky; left: 0; border-right: 1px solid var(--line); }
#creatures td:nth-child(2) { z-index: 1; }
#creatures th:nth-child(2) { z-index: 3; }
#creatures tr:hover > td { background: var(--band); }
#creatures tr.wrong > td { background: var(--wrong); }
#creatures tr.mark > td { background: var(--mark); }
#creatures button {
    width: 100%;
    padding: 0.4rem 0.75rem;
    border: 0;
    background: none;
    color: inherit;
    font: inherit;
    text-align: inherit;
    cursor: pointer;
}
#creatures button:hover { color: var(--text); }
#creatures button:focus-visible { outline: 2px solid var(--point); outline-offset: -2px; }
th[aria-sort="ascending"] button, th[aria-sort="descending"] button { color: var(--text); }
th[aria-sort="ascending"] button::after { content: "\00a0\2191"; }
th[aria-sort="descending"] button::after { content: "\00a0\2193"; }

/* What is shown. */
.choice { display: flex; flex-wrap: wrap; align-items: center; gap: 0.5rem 1.25rem; margin-bottom: 0.75rem; }
.choice input[type="search"] {
    width: min(22rem, 60vw);
    margin-left: 0.375rem;
    padding: 0.35rem 0.625rem;
    border: 1px solid var(--line);
    border-radius: 6px;
    background: var(--back);
    color: inherit;
    font: inherit;
}
.choice input:focus-visible { outline: 2px solid var(--point); outline-offset: 1px; }
.choice output { color: var(--quiet); font-variant-numeric: tabular-nums; }
ul { margin: 0; padding-left: 1.25rem; overflow-wrap: anywhere; }

@media print {
    @page { size: landscape; margin: 12mm; }
    :root {
        color-scheme: light;
        --back: #fff; --card: #fff; --band: #fff; --text: #000; --quiet: #444; --line: #bbb;
        --point: #4a7fb5; --high: #b8440b; --low: #6c48c0; --mark: #fff; --wrong: #fff;
    }
    body { padding: 0; font-size: 9pt; }
    section { padding: 0; border: 0; }
    .above { display: block; }
    .picture, svg, tr { break-inside: avoid; }
    .picture svg { display: none !important; }
    .picture svg.wide { display: block !important; }
    svg circle { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
    .choice { display: none; }
    .box { overflow: visible; max-height: none; border: 0; }
    #creatures { table-layout: auto; width: 100% !important; font-size: 7.5pt; }
    #creatures col { width: auto !important; }
    #creatures th, #creatures td { position: static !important; padding: 0.1rem 0.3rem; white-space: normal; overflow-wrap: anywhere; }
    #creatures button { padding: 0; }
}
)css";

const char* const PageScript = R"js(
"use strict";
(() => {
    const table = document.getElementById("creatures");
    const body = table.tBodies[0];
    const headings = [...table.tHead.rows[0].cells];
    const rows = [...body.rows];
    const filter = document.getElementById("filter");
    const outliers = document.getElementById("outliers");
    const count = document.getElementById("count");
    const order = new Intl.Collator(document.documentElement.lang, { numeric: true });
    const number = /^[+-]?(\d+\.?\d*|\.\d+)(e[+-]?\d+)?$/i;

    // Numbers first, then texts, then empty cells: [kind, value].
    const keyOf = (text, numeric) => {
        if (text === "")
            return [2, 0];
        return numeric && number.test(text) ? [0, Number(text)] : [1, text];
    };

    const compare = (one, other, sign) => {
        if (one[0] !== other[0])
            return one[0] === 2 || other[0] === 2 ? one[0] - other[0] : sign * (one[0] - other[0]);
        return sign * (one[0] === 1 ? order.compare(one[1], other[1]) : one[1] - other[1]);
    };

    const sortBy = column => {
        const heading = headings[column];
        const down = heading.getAttribute("aria-sort") === "ascending";
        for (const other of headings)
            other.removeAttribute("aria-sort");
        heading.setAttribute("aria-sort", down ? "descending" : "ascending");
        const numeric = heading.classList.contains("number");
        const keyed = rows.map(row => [keyOf(row.cells[column].textContent, numeric), row]);
        keyed.sort((one, other) => compare(one[0], other[0], down ? -1 : 1));
        const sorted = document.createDocumentFragment();
        for (const [, row] of keyed)
            sorted.append(row);
        body.append(sorted);
    };

    let texts = null;
    const show = () => {
        const words = filter.value.toLowerCase().split(/\s+/).filter(word => word !== "");
        texts ??= rows.map(row => [...row.cells].map(cell => cell.textContent.toLowerCase()).join("\n"));
        let shown = 0;
        rows.forEach((row, at) => {
            const wanted = words.every(word => texts[at].includes(word)) &&
                (!outliers.checked || row.classList.contains("high") || row.classList.contains("low"));
            if (row.hidden === wanted)
                row.hidden = !wanted;
            shown += wanted ? 1 : 0;
        });
        count.textContent = count.dataset.words.replace("%1", shown).replace("%2", rows.length);
    };

    headings.forEach((heading, column) =>
        heading.firstElementChild.addEventListener("click", () => sortBy(column)));
    filter.addEventListener("input", show);
    outliers.addEventListener("change", show);

    // A click on a point of the picture leads to its row.
    document.querySelector(".picture").addEventListener("click", event => {
        const point = event.target.closest("circle");
        if (point === null)
            return;
        const row = rows[Number(point.dataset.row)];
        if (row.hidden) {
            filter.value = "";
            outliers.checked = false;
            show();
        }
        for (const marked of body.querySelectorAll(".mark"))
            marked.classList.remove("mark");
        row.classList.add("mark");
        row.scrollIntoView({ block: "center", inline: "nearest" });
    });

    show(); // what a reload has kept in the fields
})();
)js";

QByteArray InHtml(const QString& text) {
    constexpr char16_t pictures = 0x2400;
    QString spelled;
    spelled.reserve(text.size() + text.size() / 8);
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code == u'&')
            spelled += u"&amp;";
        else if (code == u'<')
            spelled += u"&lt;";
        else if (code == u'>')
            spelled += u"&gt;";
        else if (code == u'"')
            spelled += u"&quot;";
        else if (code == u'\'')
            spelled += u"&#39;";
        else if (code == u'\n' || code == u'\t')
            spelled += code == u'\n' ? u"&#10;" : u"&#9;";
        else if (code < u' ')
            spelled += QChar(static_cast<char16_t>(pictures + code));
        else if ((code >= 0x7f && code < 0xa0) || (code >= 0xfdd0 && code <= 0xfdef) ||
                 code >= 0xfffe)
            spelled += QChar(QChar::ReplacementCharacter);
        else
            spelled += character;
    }
    return spelled.toUtf8();
}

QByteArray HtmlElement(const QByteArray& start, const QString& text) {
    return '<' + start + '>' + InHtml(text) + "</" + start.split(' ').constFirst() + '>';
}

} // namespace Hesperin
