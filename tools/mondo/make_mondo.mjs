// Makes data/mondo.csv, the coastlines and borders of the world map, from Natural Earth's 1:50m countries.
//
// From the root of the project:
//
//     npm install --prefix tools/mondo
//     node tools/mondo/make_mondo.mjs > data/mondo.csv
//
// The first line names the source. Every other line is a point: the country's name with the number
// of the run, the latitude (North positive) and the longitude (East positive) in degrees. The lines
// of one run follow each other and are to be joined; the countries come in alphabetical order.

import { createRequire } from "node:module";
import { readFileSync } from "node:fs";
import { feature, transform } from "topojson-client";

const TOLERANCE = 0.02; // degrees of arc by which a simplified line may leave the original one
const LONGEST_STEP = 1; // degrees of arc; longer steps are divided, since a dial bends them
const DECIMALS = 3; // the source's own grid is about 0.002 degrees

// Natural Earth shortens long names, for labels on small maps. Here they are keys in a list.
const FULL_NAMES = {
  "Antigua and Barb.": "Antigua and Barbuda",
  "Ashmore and Cartier Is.": "Ashmore and Cartier Islands",
  "Bosnia and Herz.": "Bosnia and Herzegovina",
  "Br. Indian Ocean Ter.": "British Indian Ocean Territory",
  "Cayman Is.": "Cayman Islands",
  "Central African Rep.": "Central African Republic",
  "Cook Is.": "Cook Islands",
  "Dem. Rep. Congo": "Democratic Republic of the Congo",
  "Dominican Rep.": "Dominican Republic",
  "Eq. Guinea": "Equatorial Guinea",
  "Faeroe Is.": "Faeroe Islands",
  "Falkland Is.": "Falkland Islands",
  "Fr. Polynesia": "French Polynesia",
  "Fr. S. Antarctic Lands": "French Southern and Antarctic Lands",
  "Heard I. and McDonald Is.": "Heard Island and McDonald Islands",
  "Indian Ocean Ter.": "Australian Indian Ocean Territories",
  "Macedonia": "North Macedonia",
  "Marshall Is.": "Marshall Islands",
  "N. Cyprus": "Northern Cyprus",
  "N. Mariana Is.": "Northern Mariana Islands",
  "Pitcairn Is.": "Pitcairn Islands",
  "S. Geo. and the Is.": "South Georgia and the South Sandwich Islands",
  "S. Sudan": "South Sudan",
  "Solomon Is.": "Solomon Islands",
  "St-Barthélemy": "Saint-Barthélemy",
  "St-Martin": "Saint-Martin",
  "St. Kitts and Nevis": "Saint Kitts and Nevis",
  "St. Pierre and Miquelon": "Saint Pierre and Miquelon",
  "St. Vin. and Gren.": "Saint Vincent and the Grenadines",
  "Turks and Caicos Is.": "Turks and Caicos Islands",
  "U.S. Virgin Is.": "U.S. Virgin Islands",
  "W. Sahara": "Western Sahara",
  "Wallis and Futuna Is.": "Wallis and Futuna Islands",
  "eSwatini": "Eswatini",
};

const radians = (degrees) => (degrees * Math.PI) / 180;

// A point's offset from another as degrees of arc on the ground, right for short distances.
function offset([lon, lat], [lon0, lat0]) {
  return [(lon - lon0) * Math.cos(radians((lat + lat0) / 2)), lat - lat0];
}

// The distance of p from the segment a b.
function deviation(p, a, b) {
  const [px, py] = offset(p, a);
  const [bx, by] = offset(b, a);
  const length2 = bx * bx + by * by;
  const t = length2 === 0 ? 0 : Math.min(1, Math.max(0, (px * bx + py * by) / length2));
  return Math.hypot(px - t * bx, py - t * by);
}

// Douglas and Peucker's simplification. The ends stay, so arcs that meet go on meeting; an island
// that would shrink to a line keeps all its points.
function simplified(arc) {
  const kept = new Set([0, arc.length - 1]);
  const spans = [[0, arc.length - 1]];
  while (spans.length > 0) {
    const [first, last] = spans.pop();
    let farthest = first;
    let most = TOLERANCE;
    for (let i = first + 1; i < last; i++) {
      const d = deviation(arc[i], arc[first], arc[last]);
      if (d > most) [farthest, most] = [i, d];
    }
    if (farthest === first) continue;
    kept.add(farthest);
    spans.push([first, farthest], [farthest, last]);
  }
  const closed = arc[0][0] === arc.at(-1)[0] && arc[0][1] === arc.at(-1)[1];
  return closed && kept.size < 4 ? arc : arc.filter((_, i) => kept.has(i));
}

function divided(run) {
  const points = [run[0]];
  for (let i = 1; i < run.length; i++) {
    const [a, b] = [run[i - 1], run[i]];
    const parts = Math.ceil(Math.hypot(...offset(b, a)) / LONGEST_STEP);
    for (let k = 1; k < parts; k++)
      points.push([a[0] + ((b[0] - a[0]) * k) / parts, a[1] + ((b[1] - a[1]) * k) / parts]);
    points.push(b);
  }
  return points;
}

// Cuts a ring at the 180th meridian: what crosses it ends there and starts again on the other
// side, and steps along it, where the source closes a polygon that it had to cut, are left out.
function runsOf(ring) {
  const onMeridian = ([lon]) => Math.abs(lon) > 179.9999;
  const runs = [[ring[0]]];
  for (let i = 1; i < ring.length; i++) {
    const [a, b] = [ring[i - 1], ring[i]];
    if (onMeridian(a) && onMeridian(b)) {
      runs.push([b]);
    } else if (Math.abs(b[0] - a[0]) > 180) {
      const side = Math.sign(a[0]);
      const share = (180 - Math.abs(a[0])) / (360 - Math.abs(a[0]) - Math.abs(b[0]));
      const lat = a[1] + share * (b[1] - a[1]);
      runs.at(-1).push([180 * side, lat]);
      runs.push([[-180 * side, lat], b]);
    } else {
      runs.at(-1).push(b);
    }
  }
  // A ring that was cut starts in the middle of a run: the last one goes on with the first.
  if (runs.length > 1) runs[0] = [...runs.pop(), ...runs[0].slice(1)];
  return runs.map(withoutRepeats).filter((run) => run.length > 1);
}

function withoutRepeats(run) {
  return run.filter((p, i) => i === 0 || p[0] !== run[i - 1][0] || p[1] !== run[i - 1][1]);
}

function runsOfCountry({ geometry }) {
  const polygons = geometry.type === "Polygon" ? [geometry.coordinates] : geometry.coordinates;
  return polygons
    .flat()
    .filter((ring) => ring.some(([, lat]) => lat > -89.9)) // the source's edge round the South Pole
    .flatMap(runsOf);
}

function makeMondo(topology, source) {
  const { arcs, ...rest } = topology;
  const unpack = transform(topology.transform);
  const lines = arcs.map((arc) => simplified(arc.map((point, i) => unpack(point, i))));
  const countries = feature({ ...rest, transform: undefined, arcs: lines }, rest.objects.countries)
    .features.map((country) => ({ ...country, name: FULL_NAMES[country.properties.name] ?? country.properties.name }))
    .sort((a, b) => a.name.localeCompare(b.name, "en"));

  const rows = [source];
  for (const country of countries) {
    if (/[0-9;]/.test(country.name)) throw new Error(`A digit or semicolon in the name ${country.name}`);
    runsOfCountry(country).forEach((run, number) => {
      for (const [lon, lat] of divided(run))
        rows.push(`${country.name}${number + 1};${lat.toFixed(DECIMALS)};${lon.toFixed(DECIMALS)}`);
    });
  }
  return rows.join("\n") + "\n";
}

const require = createRequire(import.meta.url);
const readJson = (path) => JSON.parse(readFileSync(require.resolve(path), "utf8"));
const { version } = readJson("world-atlas/package.json");
process.stdout.write(
  makeMondo(
    readJson("world-atlas/countries-50m.json"),
    `# Coastlines and borders: Natural Earth 1:50m countries, public domain, by way of npm world-atlas ${version}`,
  ),
);
