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
html { scroll-padding-top: 5rem }
body { margin: 0; display: flex; flex-direction: column; min-height: 100vh; background: var(--page); color: var(--ink);
  font: 1rem/1.45 system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", "DejaVu Sans", sans-serif }
a { color: var(--link) }
.bar { position: sticky; top: 0; z-index: 1; display: flex; flex-wrap: wrap; align-items: center; gap: .4rem 1rem;
  padding: .7rem max(1rem, calc((100vw - 74rem) / 2)); background: var(--card); border-bottom: 1px solid var(--line) }
.bar h1 { margin: 0; font-size: 1.25rem }
.bar a { margin-left: auto; font-size: .9rem }
.search { display: flex; flex: 1 1 16rem; align-items: center; gap: .75rem; max-width: 32rem }
.search input { flex: 1; min-width: 0; padding: .5rem .8rem; font: inherit; color: inherit; background: var(--page);
  border: 1px solid var(--line); border-radius: .6rem }
.search input:focus-visible, a:focus-visible, summary:focus-visible { outline: 2px solid var(--link); outline-offset: 1px }
.search output { color: var(--soft); font-size: .9rem; white-space: nowrap }
.verdict, main, .account { width: 100%; max-width: 76rem; margin: 0 auto; padding: 0 1rem }
.verdict { order: 1; margin-top: 1rem }
.verdict p { margin: .2rem 0 }
main { order: 2 }
.account { order: 3; padding-bottom: 3rem }
h2 { margin: 1.2rem 0 .6rem; font-size: 1rem; font-weight: 600; color: var(--soft); overflow-wrap: anywhere }
.list { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(21rem, 100%), 1fr)); gap: .8rem;
  align-items: start }
.contact { display: flex; gap: .9rem; padding: .9rem; background: var(--card); border: 1px solid var(--line);
  border-radius: .8rem; content-visibility: auto; contain-intrinsic-size: auto 8rem }
.contact:target { outline: 2px solid var(--link) }
.face { position: relative; flex: none; width: 3.5rem; height: 3.5rem; border-radius: 50%; overflow: hidden;
  display: grid; place-items: center; font-weight: 600; color: #fff; background: #4a5568 }
.face img { position: absolute; inset: 0; width: 100%; height: 100%; object-fit: cover }
.face1 { background: #9b3d5a } .face2 { background: #2f6f8f } .face3 { background: #3d7a4a }
.face4 { background: #7a5a1e } .face5 { background: #5d4a9b }
.about { flex: 1; min-width: 0; overflow-wrap: anywhere }
h3, h4 { margin: 0; font-size: 1.05rem; unicode-bidi: isolate }
.about p { margin: .1rem 0; unicode-bidi: isolate }
.work { color: var(--soft); font-size: .92rem }
.ways { list-style: none; margin: .4rem 0 0; padding: 0 }
.ways li { display: flex; flex-wrap: wrap; align-items: baseline; gap: 0 .5rem; padding: .12rem 0 }
.ways .text { min-width: 0 }
.ways a { text-decoration: none }
.ways a:hover { text-decoration: underline }
.text { unicode-bidi: isolate; white-space: pre-line }
.kind { padding: .05rem .45rem; border-radius: 1rem; background: var(--page); color: var(--soft);
  font-size: .8rem; unicode-bidi: isolate }
.about .note { margin-top: .4rem; padding-left: .7rem; border-left: 3px solid var(--line); font-size: .92rem;
  white-space: pre-line }
.nested { margin-top: .6rem; padding-left: .7rem; border-left: 3px solid var(--line) }
.extra { display: block; max-width: 100%; max-height: 10rem; margin-top: .5rem; border-radius: .4rem }
.part { display: inline-block; margin-top: .3rem; color: var(--fair); font-size: .85rem }
details { margin-top: .4rem; font-size: .9rem }
summary { color: var(--soft); cursor: pointer }
dl { display: grid; grid-template-columns: minmax(5rem, max-content) 1fr; gap: .2rem 1rem; align-items: baseline;
  margin: .4rem 0 }
.about dl { grid-template-columns: 1fr; gap: 0 }
dt { color: var(--soft); font-size: .85rem }
dd { margin: 0; min-width: 0; overflow-wrap: anywhere }
.about dd { margin-bottom: .35rem }
.book { padding: 1rem; margin-bottom: .8rem; background: var(--card); border: 1px solid var(--line);
  border-radius: .8rem }
.book h3 { overflow-wrap: anywhere }
.findings { margin: .4rem 0; padding: 0; list-style: none }
.findings li { display: flex; flex-wrap: wrap; gap: 0 .6rem; padding: .25rem 0; border-top: 1px solid var(--line) }
.findings li:target { outline: 2px solid var(--link) }
.place { min-width: 5rem; color: var(--soft); font-variant-numeric: tabular-nums }
.word { min-width: 4.8rem }
.said { flex: 1 1 14rem }
.refused, .dropped, .bad { color: var(--bad) }
.repaired { color: var(--good) }
.none { color: var(--soft) }
@media (max-width: 36rem) { .bar { padding: .6rem 1rem } .search { order: 3; flex-basis: 100%; max-width: none }
  .ways li { padding: .3rem 0 } }
@media print { .bar, details, .part { display: none } .contact { break-inside: avoid; content-visibility: visible } }
)css";

// The index is made at the first search. A telephone number is also found by its digits alone, which its link holds.
constexpr const char* s_kScript = R"js(
(function () {
  "use strict";
  var input = document.getElementById("words");
  var count = document.getElementById("count");
  var none = document.getElementById("none");
  var contacts = Array.from(document.querySelectorAll(".contact"));
  var lists = Array.from(document.querySelectorAll(".listed"));
  var texts = null;

  function plain(text) {
    return text.normalize("NFD").replace(/[\u0300-\u036f]/g, "").toLowerCase();
  }
  function textOf(contact) {
    var links = Array.from(contact.querySelectorAll('a[href^="tel:"]'));
    return plain(contact.textContent) + "\n" + links.map(function (link) { return link.getAttribute("href"); }).join("\n");
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
    lists.forEach(function (list) { list.hidden = words.length > 0 && !list.querySelector(".contact:not([hidden])"); });
    count.textContent = words.length ? shown + " of " + contacts.length : contacts.length + " in all";
    none.hidden = shown > 0 || words.length === 0;
  }

  document.getElementById("search").hidden = contacts.length === 0;
  count.textContent = contacts.length + " in all";
  input.addEventListener("input", search);
  if (input.value) search();
  window.addEventListener("hashchange", function () {
    var target = document.getElementById(location.hash.slice(1));
    if (target && target.hidden) { input.value = ""; search(); target.scrollIntoView(); }
  });
  document.addEventListener("keydown", function (event) {
    if (event.key !== "/" || event.target === input) return;
    event.preventDefault();
    input.focus();
  });
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
           "</style>\n</head>\n<body>\n<header class=\"bar\">\n<h1>Contacts</h1>\n"
           "<div class=\"search\" id=\"search\" role=\"search\" hidden>"
           "<input type=\"search\" id=\"words\" aria-label=\"Search\" placeholder=\"Name, number, note\" "
           "autocomplete=\"off\" spellcheck=\"false\"><output id=\"count\" for=\"words\"></output></div>\n"
           "<a href=\"#account\">What was read</a>\n</header>\n<main>\n"
           "<p class=\"none\" id=\"none\" hidden>No contact fits.</p>\n";
}

QByteArray PageTail()
{
    return QByteArray( "<script>" ) + s_kScript + "</script>\n</body>\n</html>\n";
}

} // namespace PimManager::Tools
