// node ical-peer.mjs WAY FILE PASSES: the same for ical.js, which is installed next to the copy of this file that runs.
// WAY is read; to-vcard, which also writes all cards; or to-jcard, which writes them as jCard.
import { readFileSync } from 'node:fs';
import ICAL from 'ical.js';

const [way, file, passes] = process.argv.slice(2);
const text = readFileSync(file, 'utf8');

// The parser stops at the first line that it cannot read, so a book that it refuses is read card by card.
function read() {
  try {
    const cards = ICAL.parse(text);
    return typeof cards[0] === 'string' ? [cards] : cards;
  } catch {
    return text.split(/(?<=^END:VCARD\r\n)/m).flatMap((card) => {
      try {
        return [ICAL.parse(card)];
      } catch {
        return [];
      }
    });
  }
}

const countOf = (found) => (found === null ? 0 : found.length);
const ways = {
  read: {
    work: read,
    count: (cards) => cards.filter(([, properties]) => properties.some(([name]) => name === 'fn')).length,
  },
  'to-vcard': {
    work: () => read().map((card) => ICAL.stringify(card)).join('\r\n'),
    count: (written) => countOf(written.match(/^FN/gm)),
  },
  'to-jcard': {
    work: () => JSON.stringify(read()),
    count: (written) => countOf(written.match(/\["fn",/g)),
  },
};

for (let pass = 0; pass < Number(passes); ++pass) {
  const begin = process.cpuUsage();
  const result = ways[way].work();
  const { user, system } = process.cpuUsage(begin);
  const seconds = ((user + system) / 1e6).toFixed(6);
  console.log(`${ways[way].count(result)} cards, ${seconds} seconds, ${process.resourceUsage().maxRSS} kilobytes`);
}
