// Writes icons.txt from the Lucide drawings: one line "name path", every path in absolute M, L, C and Z on a
// 24 x 24 grid, so that the client needs no SVG reader.
//   npm install lucide-static svgpath && node build-icons.mjs > icons.txt
import { readFileSync } from "node:fs";
import svgpath from "svgpath";

const names = {
  // Sections
  beer: "beer", bottle: "bottle-wine", brochure: "book-open", menu: "book-open", flyer: "file-text",
  chalkboard: "presentation", tablecloth: "utensils", video: "video", insert: "sticker", wine: "wine",
  poster: "image", sellingsheet: "scroll-text", tshirt: "shirt", party: "party-popper",
  promotions: "gift", ordersheet: "notebook-pen", drinks: "martini", glass: "glass-water", cup: "cup-soda",
  flag: "flag", pennant: "flag-triangle-right", pennantbrand: "flag", products: "layout-grid",
  // Tool bar
  refresh: "refresh-cw", orders: "clipboard-list", list: "list", user: "user", mailbox: "mailbox", play: "play",
  pause: "pause", expand: "maximize", shrink: "minimize",
  logout: "log-out", settings: "sliders-horizontal", help: "circle-question-mark", hamburger: "menu",
  // Actions
  search: "search", close: "x", check: "check", "chevron-left": "chevron-left", "chevron-right": "chevron-right",
  "chevron-up": "chevron-up", "chevron-down": "chevron-down", back: "arrow-left", plus: "plus", minus: "minus",
  trash: "trash-2", star: "star", print: "printer", eye: "eye", preview: "eye", save: "save", send: "send",
  edit: "pencil", flip: "flip-horizontal-2", zoom: "zoom-in", "zoom-in": "zoom-in", "zoom-out": "zoom-out",
  reset: "rotate-ccw", eraser: "eraser", copy: "copy", more: "ellipsis", download: "download", upload: "upload",
  link: "link", scissors: "scissors", layers: "layers", undo: "undo-2", claim: "message-square-warning",
  // States
  warning: "triangle-alert", info: "info", cloud: "cloud", "cloud-upload": "cloud-upload", offline: "cloud-off",
  "circle-check": "circle-check", "circle-close": "circle-x", clock: "clock", bell: "bell", lock: "lock",
  package: "package", truck: "truck", "image-off": "image-off", folder: "folder",
  icon_order_sync: "cloud-check", icon_order_save_local: "tablet", icon_order_cloud: "cloud",
  icon_order_pending_send: "clock-arrow-up",
  // Things
  tag: "tag", price: "tag", euro: "euro", palette: "palette", style: "palette", camera: "camera",
  location: "map-pin", qr: "qr-code", phone: "phone", mail: "mail", calendar: "calendar", language: "languages",
  globe: "globe", store: "store", users: "users", calculator: "calculator", percent: "percent",
  chart: "chart-column", book: "book",
  // Sorting
  sort_both: "arrow-up-down", sort_ascendant: "arrow-up-narrow-wide", sort_descendant: "arrow-down-wide-narrow",
};

const number = (text, fallback = 0) => (text === undefined ? fallback : Number(text));

function ellipsePath(cx, cy, rx, ry) {
  return `M${cx - rx} ${cy}a${rx} ${ry} 0 1 0 ${2 * rx} 0a${rx} ${ry} 0 1 0 ${-2 * rx} 0Z`;
}

function rectanglePath(a) {
  const [x, y, w, h] = [number(a.x), number(a.y), number(a.width), number(a.height)];
  const r = number(a.rx ?? a.ry);
  return `M${x + r} ${y}h${w - 2 * r}a${r} ${r} 0 0 1 ${r} ${r}v${h - 2 * r}a${r} ${r} 0 0 1 ${-r} ${r}` +
    `h${-(w - 2 * r)}a${r} ${r} 0 0 1 ${-r} ${-r}v${-(h - 2 * r)}a${r} ${r} 0 0 1 ${r} ${-r}Z`;
}

function elementPath(tag, a) {
  switch (tag) {
    case "path": return a.d;
    case "circle": return ellipsePath(number(a.cx), number(a.cy), number(a.r), number(a.r));
    case "ellipse": return ellipsePath(number(a.cx), number(a.cy), number(a.rx), number(a.ry));
    case "rect": return rectanglePath(a);
    case "line": return `M${a.x1} ${a.y1}L${a.x2} ${a.y2}`;
    case "polyline": return `M${a.points}`;
    case "polygon": return `M${a.points}Z`;
    default: throw new Error(`unknown element ${tag}`);
  }
}

function simplified(d) {
  const out = [];
  const round = (v) => Number(v.toFixed(2));
  svgpath(d).abs().unshort().unarc().iterate((s, i, x, y) => {
    const [c, ...v] = s;
    if (c === "M" || c === "L" || c === "C") out.push(c, ...v.map(round));
    else if (c === "H") out.push("L", round(v[0]), round(y));
    else if (c === "V") out.push("L", round(x), round(v[0]));
    else if (c === "Q") {
      const [qx, qy, ex, ey] = v;
      out.push("C", round(x + (2 / 3) * (qx - x)), round(y + (2 / 3) * (qy - y)),
        round(ex + (2 / 3) * (qx - ex)), round(ey + (2 / 3) * (qy - ey)), round(ex), round(ey));
    } else if (c === "Z" || c === "z") out.push("Z");
    else throw new Error(`unknown command ${c}`);
  });
  return out.join(" ");
}

for (const [name, drawing] of Object.entries(names)) {
  const svg = readFileSync(`node_modules/lucide-static/icons/${drawing}.svg`, "utf8").replace(/<svg[^>]*>/, "");
  const parts = [];
  for (const [, tag, rest] of svg.matchAll(/<(path|circle|ellipse|rect|line|polyline|polygon)\s([^>]*?)\/?>/g)) {
    const attributes = Object.fromEntries([...rest.matchAll(/([\w-]+)="([^"]*)"/g)].map((m) => [m[1], m[2]]));
    parts.push(simplified(elementPath(tag, attributes)));
  }
  console.log(`${name} ${parts.join(" ")}`);
}
