#include "Page/PageDesign.h"

#include <QCryptographicHash>

namespace PimManager::Tools
{

namespace
{

constexpr const char* s_kStyle = R"css(
:root { color-scheme: light dark; --page: #f4f5f7; --card: #fff; --ink: #1c2330; --soft: #5b6577; --line: #dde1e8;
  --link: #0b5cad; --bad: #a4262c; --fair: #8a5a00; --good: #1d6b3a }
@media (prefers-color-scheme: dark) { :root { --page: #14171c; --card: #1e232b; --ink: #e6e9ee; --soft: #9aa5b5;
  --line: #323a46; --link: #79b8ff; --bad: #ff8f8f; --fair: #e3b341; --good: #7ccf9a } }
* { box-sizing: border-box }
[hidden] { display: none !important }
html { scroll-padding-top: 11rem; text-size-adjust: 100% }
body { margin: 0; background: var(--page); color: var(--ink);
  font: 1rem/1.45 system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", "DejaVu Sans", sans-serif }
a { color: var(--link) }
.top, .bar, main, .account { padding-inline: max(1rem, calc((100vw - 74rem) / 2)) }
.top { display: flex; align-items: baseline; gap: 1rem; padding-block: .7rem 0; background: var(--card) }
.top h1 { flex: 1; margin: 0; font-size: 1.25rem }
.top a { font-size: .9rem }
.bar { position: sticky; top: 0; z-index: 1; display: flex; flex-wrap: wrap; align-items: center; gap: .4rem 1rem;
  padding-block: .6rem .4rem; background: var(--card); border-bottom: 1px solid var(--line) }
.search { display: flex; flex: 1 1 100%; align-items: center; gap: .75rem; max-width: 32rem }
.search input { flex: 1; min-width: 0; padding: .5rem .8rem; font: inherit; color: inherit; background: var(--page);
  border: 1px solid var(--line); border-radius: .6rem }
.search input:focus-visible, a:focus-visible, summary:focus-visible { outline: 2px solid var(--link); outline-offset: 1px }
.search output { color: var(--soft); font-size: .9rem; white-space: nowrap }
.letters { display: flex; flex: 1 1 100%; flex-wrap: wrap; margin-inline: -.4rem }
.letters a { min-width: 2rem; padding: .25rem .4rem; border-radius: .4rem; font-weight: 600; line-height: 1.5rem;
  text-align: center; text-decoration: none }
.letters a:hover { background: var(--page) }
.verdict p { margin: 1rem 0 .2rem; overflow-wrap: anywhere }
.account { padding-bottom: 3rem }
h2 { margin: 0; font-size: 1.1rem }
.account h2 { margin: 1.6rem 0 .6rem }
summary { cursor: pointer }
.letter > summary, .contact > summary { display: flex; align-items: center; gap: .9rem; list-style: none }
.letter > summary::-webkit-details-marker, .contact > summary::-webkit-details-marker { display: none }
.letter > summary::after, .contact > summary::after { content: ""; flex: none; width: .5rem; height: .5rem;
  margin: 0 .3rem .25rem; border: solid var(--soft); border-width: 0 2px 2px 0; transform: rotate(45deg) }
.letter[open] > summary::after, .contact[open] > summary::after { margin-bottom: -.25rem; transform: rotate(225deg) }
.letter > summary { padding: .5rem 0; border-bottom: 1px solid var(--line) }
.letter .number { flex: 1; color: var(--soft); font-size: .9rem }
.few { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(21rem, 100%), 1fr)); gap: 0 1.5rem;
  align-items: start }
.list { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(21rem, 100%), 1fr)); gap: .5rem;
  align-items: start; padding: .5rem 0 1rem }
.contact { background: var(--card); border: 1px solid var(--line); border-radius: .7rem; content-visibility: auto;
  contain-intrinsic-size: auto 3.6rem }
.findings li:target { outline: 2px solid var(--link) }
.contact:has(:target) { outline: 2px solid var(--link) }
.contact > summary { min-height: 3.5rem; padding: .4rem .8rem }
.face { position: relative; flex: none; width: 2.6rem; height: 2.6rem; border-radius: 50%; overflow: hidden;
  display: grid; place-items: center; font-weight: 600; color: #fff; background: #4a5568 }
/* A picture that does not decode is a few pixels high, so it moves less and stays out of sight. */
.photo { position: absolute; inset: -200% 0 0 }
.photo img { width: 100%; height: 33.4%; object-fit: cover; vertical-align: top; font-size: 0; background: var(--card);
  transform: translateY(200%) }
.face1 { background: #9b3d5a } .face2 { background: #2f6f8f } .face3 { background: #3d7a4a }
.face4 { background: #7a5a1e } .face5 { background: #5d4a9b }
.head { flex: 1; min-width: 0; overflow-wrap: anywhere }
h3, h4, .text { unicode-bidi: isolate; text-align: match-parent }
h3, h4 { margin: 0; font-size: 1.02rem; line-height: 1.3 }
.work, .role { display: block; color: var(--soft); font-size: .9rem }
.job + .job::before { content: " \b7  " }
.contact:not([open]) > summary :is(h3, .work) { overflow: hidden; white-space: nowrap; text-overflow: ellipsis }
.contact:not([open]) > summary .kind { display: none }
.about { padding: 0 .8rem .8rem; overflow-wrap: anywhere; scroll-margin-top: 4rem }
.about p { margin: .4rem 0 0 }
:is(.work, .ways, .facts):empty { display: none }
.ways { list-style: none; margin: .2rem 0 0; padding: 0 }
.ways li { display: flex; flex-wrap: wrap; align-items: baseline; gap: 0 .5rem; padding: .2rem 0 }
.ways .text { min-width: 0 }
.ways a { text-decoration: none }
.ways a:hover { text-decoration: underline }
.text { white-space: pre-line }
.kind { padding: .05rem .45rem; border-radius: 1rem; background: var(--page); color: var(--soft);
  font-size: .8rem; unicode-bidi: isolate }
.about :is(.note, .nested) { margin-top: .5rem; padding-inline-start: .7rem; border-inline-start: 3px solid var(--line) }
.about :is(.note, .source) { font-size: .92rem }
.source { color: var(--soft) }
.extra img { display: block; max-width: 100%; max-height: 10rem; margin-top: .5rem; border-radius: .4rem }
.part { display: inline-block; margin-top: .3rem; color: var(--fair); font-size: .85rem }
.rest, .book details { margin-top: .5rem; font-size: .9rem }
.rest > summary, .book summary { color: var(--soft) }
dl { display: grid; grid-template-columns: fit-content(9rem) 1fr; gap: .25rem 1rem; align-items: baseline;
  margin: .4rem 0 0 }
.book dl { grid-template-columns: minmax(5rem, max-content) 1fr }
dt { color: var(--soft); font-size: .88rem }
dd { margin: 0; min-width: 0; overflow-wrap: anywhere }
.book { padding: 1rem; margin-bottom: .8rem; background: var(--card); border: 1px solid var(--line);
  border-radius: .8rem }
.book h3 { overflow-wrap: anywhere }
.book p { margin: .2rem 0 }
.findings { margin: .4rem 0; padding: 0; list-style: none }
.findings li { display: flex; flex-wrap: wrap; gap: 0 .6rem; padding: .25rem 0; border-top: 1px solid var(--line) }
.place { min-width: 5rem; color: var(--soft); font-variant-numeric: tabular-nums }
.word { min-width: 4.8rem }
.said { flex: 1 1 14rem }
.refused, .dropped, .bad { color: var(--bad) }
.repaired { color: var(--good) }
.none { color: var(--soft) }
@media (max-width: 36rem) { html { scroll-padding-top: 9.3rem }
  .letters { flex-wrap: nowrap; overflow-x: auto; scrollbar-width: none }
  .letters a { min-width: 2.4rem; padding-block: .4rem } .ways li { padding: .35rem 0 } }
@media print { .top a, .bar, .part { display: none } .contact { break-inside: avoid; content-visibility: visible } }
)css";

// The index is made at the first search. A telephone number is also found by its digits alone, which its link holds.
// Old browsers do not open what a link leads to, and none prints what is not open.
constexpr const char* s_kScript = R"js(
(function () {
  "use strict";
  var input = document.getElementById("words");
  var count = document.getElementById("count");
  var none = document.getElementById("none");
  var contacts = Array.from(document.querySelectorAll(".contact"));
  var letters = Array.from(document.querySelectorAll(".letter"));
  var texts = null;
  var before = null;

  function plain(text) {
    return text.normalize("NFD").replace(/[\u0300-\u036f]/g, "").toLowerCase();
  }
  function textOf(contact) {
    var links = Array.from(contact.querySelectorAll('a[href^="tel:"]'));
    return plain(contact.textContent) + "\n" + links.map(function (link) { return link.getAttribute("href"); }).join("\n");
  }
  function openAll(elements) {
    var open = elements.map(function (element) { return element.open; });
    elements.forEach(function (element) { element.open = true; });
    return function () { elements.forEach(function (element, index) { element.open = open[index]; }); };
  }
  function search() {
    var words = plain(input.value).split(/\s+/).filter(Boolean);
    texts = texts || contacts.map(textOf);
    var shown = 0;
    contacts.forEach(function (contact, index) {
      var fits = words.every(function (word) { return texts[index].includes(word); });
      contact.hidden = !fits;
      shown += fits ? 1 : 0;
    });
    if (words.length && !before) before = openAll(letters);
    if (!words.length && before) { before(); before = null; }
    letters.forEach(function (letter) {
      letter.hidden = words.length > 0 && !letter.querySelector(".contact:not([hidden])");
    });
    count.textContent = words.length ? shown + " of " + contacts.length : contacts.length + " in all";
    none.hidden = shown > 0 || words.length === 0;
  }
  function reveal(id) {
    var target = id ? document.getElementById(id) : null;
    if (!target) return;
    if (target.closest("[hidden]")) { input.value = ""; search(); }
    for (var element = target.parentElement; element; element = element.parentElement) {
      if (element.tagName === "DETAILS") element.open = true;
    }
    target.scrollIntoView();
  }

  document.getElementById("search").hidden = contacts.length === 0;
  count.textContent = contacts.length + " in all";
  input.addEventListener("input", search);
  if (input.value) search();
  reveal(location.hash.slice(1));
  window.addEventListener("hashchange", function () { reveal(location.hash.slice(1)); });
  document.addEventListener("click", function (event) {
    var link = event.target.closest('a[href^="#"]');
    if (link && link.hash === location.hash) reveal(link.hash.slice(1));
  });
  document.addEventListener("keydown", function (event) {
    if (event.key !== "/" || event.target === input) return;
    event.preventDefault();
    input.focus();
  });
  var printed = null;
  window.addEventListener("beforeprint", function () { printed = openAll(letters.concat(contacts)); });
  window.addEventListener("afterprint", function () { if (printed) printed(); });
})();
)js";

QByteArray HashOf( const char* a_text )
{
    return "'sha256-" + QCryptographicHash::hash( QByteArray( a_text ), QCryptographicHash::Sha256 ).toBase64() + "'";
}

} // namespace

QByteArray PageHead()
{
    return QByteArray( "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
                       "style-src " ) +
           HashOf( s_kStyle ) + "; script-src " + HashOf( s_kScript ) +
           "; base-uri 'none'; form-action 'none'\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"referrer\" content=\"no-referrer\">\n"
           "<meta name=\"format-detection\" content=\"telephone=no\">\n"
           "<title>Contacts</title>\n<style>" +
           s_kStyle +
           "</style>\n</head>\n<body>\n<header class=\"top\">\n<h1>Contacts</h1>\n"
           "<a href=\"#account\">What was read</a>\n</header>\n<div class=\"bar\">\n"
           "<div class=\"search\" id=\"search\" role=\"search\" hidden>"
           "<input type=\"search\" id=\"words\" aria-label=\"Search\" placeholder=\"Name, number, note\" "
           "autocomplete=\"off\" spellcheck=\"false\"><output id=\"count\" for=\"words\"></output></div>\n";
}

QByteArray PageMiddle()
{
    return "</div>\n<main>\n<p class=\"none\" id=\"none\" hidden>No contact fits.</p>\n";
}

QByteArray PageTail()
{
    return QByteArray( "<script>" ) + s_kScript + "</script>\n</body>\n</html>\n";
}

} // namespace PimManager::Tools
