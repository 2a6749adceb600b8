#include "page_style.h"

namespace report
{

const char* pageStyle()
{
    return R"(
:root {
  color-scheme: light dark;
  --ground: #ffffff; --card: #f6f8fa; --ink: #1c2430; --soft: #56616e; --line: #d3dae1;
  --bar: #2f6db3; --mark: #b4530a; --positive: #b4530a; --negative: #2f6db3; --on-strong: #ffffff;
}
@media screen and (prefers-color-scheme: dark) {
  :root {
    --ground: #14181d; --card: #1c2229; --ink: #e6eaef; --soft: #a3adb8; --line: #39434e;
    --bar: #6aa7e8; --mark: #f0a35e; --positive: #f0a35e; --negative: #6aa7e8; --on-strong: #14181d;
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
.pictures { display: flex; flex-wrap: wrap; gap: 1rem; margin-top: 0.8rem; }
figure { margin: 0; padding: 0.6rem; background: var(--card); border: 1px solid var(--line); border-radius: 6px;
  max-width: 100%; }
svg { display: block; max-width: 100%; height: auto; font: 12px system-ui, sans-serif; }
@media print {
  body { font-size: 10pt; }
  main { max-width: none; padding: 0; }
  nav { display: none; }
  table { font-size: 8pt; }
  .scroll { overflow: visible; }
  h2, thead { break-after: avoid; }
  tr, figure { break-inside: avoid; }
  tbody tr:nth-child(even), figure, svg { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
}
)";
}

} // namespace report
