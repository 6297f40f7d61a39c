#include "ReportStyle.h"

namespace Zenvora::Lumidex::Host {

const char* const kReportStyle = R"css(
:root {
  color-scheme: light dark;
  --page: #f6f4f0; --card: #ffffff; --ink: #1f2328; --soft: #5b6169; --line: #e3dfd7;
  --accent: #9a4a12; --accent-soft: #fbeee2; --good: #1c6b3c; --good-soft: #e2f3e7; --blank: #ebe7df;
  --shadow: 0 1px 2px rgba(40, 30, 10, .06), 0 8px 24px rgba(40, 30, 10, .06);
}
@media (prefers-color-scheme: dark) {
  :root {
    --page: #131519; --card: #1c1f25; --ink: #eceff3; --soft: #a4abb6; --line: #2d323b;
    --accent: #f3ab6d; --accent-soft: #38291c; --good: #86d9a4; --good-soft: #1b3325; --blank: #262a32;
    --shadow: 0 1px 2px rgba(0, 0, 0, .4), 0 8px 24px rgba(0, 0, 0, .25);
  }
}
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; }
body {
  margin: 0; background: var(--page); color: var(--ink);
  font: 1rem/1.5 system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", "DejaVu Sans", sans-serif;
}
.wrap { max-width: 80rem; margin: 0 auto; padding: 0 clamp(1rem, 4vw, 3rem); }
.top { padding-block: clamp(2rem, 6vw, 4rem) 1.75rem; }
.brand {
  display: flex; align-items: center; gap: .5rem; margin: 0 0 .75rem; color: var(--accent);
  font-size: .8rem; font-weight: 700; letter-spacing: .14em; text-transform: uppercase;
}
.brand svg { width: 1.4em; height: 1.4em; }
h1 { margin: 0; font-size: clamp(2rem, 5vw, 3.25rem); line-height: 1.1; letter-spacing: -.02em; overflow-wrap: anywhere; }
.totals { margin: .75rem 0 0; color: var(--soft); font-size: 1.1rem; }
nav { display: grid; gap: .65rem; }
nav.wrap { padding-bottom: 2.25rem; }
.year { display: grid; grid-template-columns: 5rem 1fr; align-items: baseline; gap: .5rem; }
.year p { margin: 0; font-weight: 700; font-variant-numeric: tabular-nums; }
.year ul { display: flex; flex-wrap: wrap; gap: .45rem; margin: 0; padding: 0; list-style: none; min-width: 0; }
.year li { display: flex; min-width: 0; max-width: min(100%, 24rem); }
nav a {
  display: inline-flex; gap: .45rem; max-width: 100%; padding: .25rem .8rem; border: 1px solid var(--line);
  border-radius: 99rem; background: var(--card); color: var(--ink); font-size: .9rem; text-decoration: none;
}
nav a:hover, nav a:focus-visible { border-color: var(--accent); color: var(--accent); }
:focus-visible { outline: 2px solid var(--accent); outline-offset: 2px; }
nav a span:first-child { overflow: hidden; text-overflow: ellipsis; white-space: nowrap; }
nav a span + span { color: var(--soft); font-variant-numeric: tabular-nums; }
.album {
  margin: 0 0 1.75rem; padding: clamp(1rem, 3vw, 2rem); border: 1px solid var(--line); border-radius: 1.1rem;
  background: var(--card); box-shadow: var(--shadow); scroll-margin-top: 1rem;
}
.album > header { margin-bottom: 1.1rem; }
h2 { margin: 0; font-size: clamp(1.35rem, 3vw, 1.8rem); line-height: 1.2; letter-spacing: -.01em; overflow-wrap: anywhere; }
.when { display: flex; flex-wrap: wrap; align-items: center; gap: .25rem .7rem; margin: .35rem 0 0; color: var(--soft); }
.badge {
  display: inline-flex; align-items: center; gap: .35rem; padding: .05rem .65rem; border-radius: 99rem;
  background: var(--good-soft); color: var(--good); font-size: .8rem; font-weight: 600;
}
.badge svg { width: .85em; height: .85em; }
.photos { display: flex; flex-wrap: wrap; gap: .9rem .6rem; margin: 0; padding: 0; list-style: none; }
.photos::after { content: ""; flex: 1000 1 0; }
.photos li { flex: var(--r) 1 calc(var(--r) * var(--row)); max-width: calc(var(--r) * var(--row) * 1.5); min-width: 0; }
figure { margin: 0; }
.photos img, .blank { display: block; width: 100%; aspect-ratio: var(--r); border-radius: .5rem; background: var(--blank); }
.photos img { height: auto; object-fit: cover; }
.mark {
  display: inline-block; max-width: 100%; margin-top: .45rem; padding: .05rem .6rem; border: 1px solid currentColor;
  border-radius: 99rem; font-size: .74rem; font-weight: 700; line-height: 1.5; overflow: hidden; text-overflow: ellipsis;
  white-space: nowrap; vertical-align: top;
}
.mark.keep { background: var(--accent); border-color: var(--accent); color: var(--card); }
.mark.good { background: var(--good-soft); color: var(--good); }
.mark.careful { background: var(--accent-soft); color: var(--accent); }
.mark.plain { color: var(--soft); }
figcaption {
  margin-top: .3rem; overflow: hidden; color: var(--soft); font-size: .78rem; line-height: 1.35;
  text-overflow: ellipsis; white-space: nowrap; font-variant-numeric: tabular-nums;
}
figcaption .line { display: block; overflow: hidden; text-overflow: ellipsis; }
figcaption .line:nth-child(n + 3) { white-space: normal; overflow-wrap: break-word; }
.chosen img, .chosen .blank { outline: 3px solid var(--accent); outline-offset: 2px; }
.chosen figcaption { padding-top: .2rem; color: var(--accent); font-weight: 600; }
.blank {
  display: flex; flex-direction: column; align-items: center; justify-content: center; gap: .3rem; padding: .5rem;
  overflow: hidden; color: var(--soft); font-size: .78rem; line-height: 1.3; text-align: center;
}
.blank svg { width: 2rem; height: 2rem; flex: none; opacity: .8; }
.blank span { max-width: 100%; overflow: hidden; text-overflow: ellipsis; white-space: nowrap; }
.photos li.more { flex: 0 0 calc(var(--row) * 1.15); max-width: none; }
.more p {
  display: flex; align-items: center; justify-content: center; height: var(--row); margin: 0; padding: .5rem;
  border: 1.5px dashed var(--line); border-radius: .5rem; background: var(--accent-soft); color: var(--accent);
  font-weight: 600; text-align: center;
}
.empty { padding: clamp(2.5rem, 8vw, 5rem) 1rem; text-align: center; }
.empty svg { width: 4.5rem; height: 4.5rem; color: var(--accent); }
.empty h2 { margin-top: 1rem; }
.empty p { max-width: 34rem; margin: .6rem auto 0; color: var(--soft); }
.foot { padding-block: .5rem 3rem; color: var(--soft); font-size: .85rem; }
@media (max-width: 34rem) {
  .year { grid-template-columns: 1fr; gap: .25rem; }
  .photos { gap: .7rem .45rem; }
  .photos li { flex-basis: calc(var(--r) * var(--row) * .62); }
  .photos li.more { flex-basis: calc(var(--row) * .8); }
  .more p { height: calc(var(--row) * .62); }
}
@media print {
  :root {
    --page: #ffffff; --card: #ffffff; --ink: #000000; --soft: #444444; --line: #cccccc; --accent: #444444;
    --accent-soft: #ffffff; --good: #1c6b3c; --good-soft: #ffffff; --blank: #eeeeee; --shadow: none;
  }
  body { font-size: 10pt; -webkit-print-color-adjust: exact; print-color-adjust: exact; }
  nav { display: none; }
  .wrap { max-width: none; padding: 0; }
  .top { padding-block: 0 1rem; }
  .album { padding: 0 0 1rem; border: 0; border-radius: 0; }
  .album > header { break-after: avoid; }
  .photos li { break-inside: avoid; }
}
)css";

}  // namespace Zenvora::Lumidex::Host
