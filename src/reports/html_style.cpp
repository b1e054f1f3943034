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
.high .off { color: var(--high); font-weight: 600; }
.low .off { color: var(--low); font-weight: 600; }
.high .off::before { content: "\25b2\00a0"; font-size: 0.7em; }
.low .off::before { content: "\25bc\00a0"; font-size: 0.7em; }
.box { overflow: auto; max-height: 85vh; border: 1px solid var(--line); border-radius: 6px; overscroll-behavior-x: contain; }
.box:focus-visible { outline: 2px solid var(--point); outline-offset: 1px; }
/* Each row is a grid of its own, so that what is scrolled out of sight costs nothing. */
#creatures { display: block; width: max-content; font-size: 0.8125rem; line-height: 1.125rem; }
#creatures thead { display: block; position: sticky; top: 0; z-index: 1; }
#creatures tbody { display: block; }
#creatures tr { display: grid; }
#creatures tr[hidden] { display: none; }
#creatures tbody tr { content-visibility: auto; contain-intrinsic-size: auto 27px; }
#creatures th, #creatures td { overflow: hidden; white-space: nowrap; text-overflow: ellipsis; }
#creatures th { padding: 0; background: var(--band); }
#creatures td { background: var(--card); }
.path { display: flex; }
.path span { flex: 0 1 auto; overflow: hidden; text-overflow: ellipsis; color: var(--quiet); }
.path b { flex: none; max-width: 100%; overflow: hidden; text-overflow: ellipsis; font-weight: inherit; }
@media (max-width: 759px) {
    .path span { display: none; }
}
@media (min-width: 760px) {
    #creatures .held { position: sticky; left: 0; border-right: 1px solid var(--line); }
    #creatures .off { position: sticky; right: 0; border-left: 1px solid var(--line); }
}
#creatures tr:hover > td { background: var(--band); }
#creatures tr.wrong > td { background: var(--wrong); }
#creatures tr.mark > td { background: var(--mark); }
#creatures button {
    width: 100%;
    padding: 6px 0.75rem;
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
    .above section, tr { break-inside: avoid; }
    .picture svg { display: none !important; }
    .picture svg.wide { display: block !important; }
    svg circle { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
    .choice { display: none; }
    .box { overflow: visible; max-height: none; border: 0; }
    #creatures { display: table; width: 100%; font-size: 7.5pt; }
    #creatures thead { display: table-header-group; position: static; }
    #creatures tbody { display: table-row-group; }
    #creatures tr { display: table-row; content-visibility: visible !important; }
    #creatures th, #creatures td {
        position: static !important;
        padding: 0.1rem 0.3rem;
        border-left: 0 !important;
        border-right: 0 !important;
    }
    #creatures th, #creatures td:last-child { white-space: normal; }
    .path { display: block; }
    .path span { display: none; }
    #creatures button { padding: 0; }
}
)css";

} // namespace Hesperin
