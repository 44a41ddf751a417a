// node ical-peer.mjs FILE PASSES: the same for ical.js, which is installed next to the copy of this file that runs.
import { readFileSync } from 'node:fs';
import ICAL from 'ical.js';

const [file, passes] = process.argv.slice(2);
const text = readFileSync(file, 'utf8');

// The parser gives up at the first line that it cannot read, so a book that it refuses is read card by card.
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

for (let pass = 0; pass < Number(passes); ++pass) {
  const begin = process.cpuUsage();
  const cards = read();
  const { user, system } = process.cpuUsage(begin);
  const named = cards.filter(([, properties]) => properties.some(([name]) => name === 'fn')).length;
  const seconds = ((user + system) / 1e6).toFixed(6);
  console.log(`${named} cards, ${seconds} seconds, ${process.resourceUsage().maxRSS} kilobytes`);
}
