#include "reports/html_page.h"

namespace Hesperin {

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

} // namespace Hesperin
