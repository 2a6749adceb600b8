#include "page_style.h"

namespace report
{

const char* pageStyle()
{
    return R"(
:root {
  color-scheme: light dark;
  --ground: #ffffff; --card: #f6f8fa; --ink: #1c2430; --soft: #56616e; --line: #d3dae1;
  --bar: #2f6db3; --mark: #b4530a; --positive: #b4530a; --negative: #2f6db3;
  --on-strong: #ffffff; --on-middle: #1c2430;
}
@media screen and (prefers-color-scheme: dark) {
  :root {
    --ground: #14181d; --card: #1c2229; --ink: #e6eaef; --soft: #a3adb8; --line: #39434e;
    --bar: #6aa7e8; --mark: #f0a35e; --positive: #f0a35e; --negative: #6aa7e8;
    --on-strong: #14181d; --on-middle: #14181d;
  }
}
* { box-sizing: border-box; }
body { margin: 0; background: var(--ground); color: var(--ink); font: 15px/1.45 system-ui, sans-serif; }
main { max-width: 70rem; margin: 0 auto; padding: 1.5rem; }
article + article { margin-top: 4rem; border-top: 3px solid var(--line); }
h1 { font-size: 1.5rem; overflow-wrap: anywhere; }
h2 { font-size: 1.1rem; margin: 2.2rem 0 0.6rem; border-bottom: 1px solid var(--line); padding-bottom: 0.3rem; }
nav ul { list-style: none; margin: 0; padding: 0; display: flex; flex-wrap: wrap; gap: 0.2rem 1.2rem; }
a { color: var(--bar); }
.scroll { overflow-x: auto; margin-bottom: 0.9rem; }
table { border-collapse: collapse; font-size: 0.87rem; }
th, td { padding: 0.18rem 0.6rem; text-align: left; vertical-align: top; white-space: pre; }
th { font-weight: 600; }
thead th { color: var(--soft); border-bottom: 1px solid var(--line); vertical-align: bottom; }
tbody th.minor { font-weight: 400; color: var(--soft); }
tbody tr:nth-child(even) { background: var(--card); }
.figure { text-align: right; }
tbody .figure { font-family: ui-monospace, "DejaVu Sans Mono", Menlo, Consolas, monospace; }
.note { color: var(--soft); margin: 0.3rem 0; max-width: 60rem; }
.pictures { display: flex; flex-wrap: wrap; align-items: flex-start; gap: 1rem; margin-top: 0.8rem; }
figure { margin: 0; padding: 0.6rem; background: var(--card); border: 1px solid var(--line); border-radius: 6px;
  max-width: 100%; }
summary { color: var(--soft); font-size: 0.8rem; cursor: pointer; }
svg { display: block; max-width: 100%; height: auto; font: 12px system-ui, sans-serif; }
svg text { fill: var(--ink); }
svg text.minor { fill: var(--soft); font-size: 11px; }
svg text.heading { font-size: 13px; font-weight: 600; }
svg text.number { font-size: 11px; }
svg text.strong { fill: var(--on-strong); }
svg text.middle { fill: var(--on-middle); }
svg text.name { font-weight: 600; paint-order: stroke; stroke: var(--card); stroke-width: 3px; }
.bar { fill: var(--bar); }
.axis { stroke: var(--soft); }
.grid { stroke: var(--line); }
.whisker { stroke: var(--ink); }
.box { fill: var(--line); stroke: var(--ink); }
.median { stroke: var(--mark); stroke-width: 2.5px; }
.dot { fill: var(--bar); fill-opacity: 0.6; }
.ring { fill: none; stroke: var(--soft); stroke-dasharray: 4 4; }
.arrow { stroke: var(--mark); stroke-width: 1.6px; }
.tip { fill: var(--mark); }
.positive { fill: var(--positive); }
.negative { fill: var(--negative); }
.undefined { fill: none; stroke: var(--line); }
@media print {
  body { font-size: 10pt; }
  main { max-width: none; padding: 0; }
  nav, details { display: none; }
  table { font-size: 8pt; }
  .scroll { overflow: visible; }
  .pictures { display: block; orphans: 1; widows: 1; }
  figure { display: inline-block; margin: 0 0.4rem 0.6rem 0; vertical-align: top; }
  h2, thead { break-after: avoid; }
  tr, figure { break-inside: avoid; }
  tbody tr:nth-child(even), figure, svg { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
}
)";
}

} // namespace report
