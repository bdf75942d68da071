"use strict";
// The lists beside the board: layers, nets, components by part, results of a search.

const kindNames = { [Kind.net]: "net", [Kind.component]: "component", [Kind.pin]: "pin" };

function element(name, attributes, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) made.setAttribute(key, value);
  made.append(...children);
  return made;
}

// A button of a list that selects something.
function jumpButton(kind, index, name, note, select) {
  const button = element("button", { type: "button", class: "jump", "data-kind": kindNames[kind] },
    element("span", { class: "name" }, name), element("span", { class: "note" }, note));
  button.addEventListener("click", () => select({ kind, index }));
  return element("li", {}, button);
}

function millimetres(length) {
  return `${length.toLocaleString("en", { maximumFractionDigits: 1 })} mm`;
}

class Lists {
  constructor(board, select) {
    this.board = board;
    this.select = select;
  }

  showLayers(list, change) {
    this.board.layers.forEach((layer, index) => {
      const box = element("input", { type: "checkbox" });
      box.checked = layer.isShown;
      box.addEventListener("change", () => change(index, box.checked));
      const swatch = element("span", { class: "swatch", "aria-hidden": "true" });
      swatch.style.setProperty("--dark", layer.colours[0]);
      swatch.style.setProperty("--light", layer.colours[1]);
      // What is drawn last is uppermost, on the board and in the list.
      list.prepend(element("li", {}, element("label", {}, box, swatch, layer.label)));
    });
  }

  // Shows as many nets as somebody may read.
  showNets(list, filter) {
    const most = 200;
    const wanted = filter.trim().toLowerCase();
    const found = [];
    this.board.nets.forEach((net, index) => {
      if (net.name.toLowerCase().includes(wanted)) found.push(index);
    });
    list.replaceChildren(...found.slice(0, most).map((index) => {
      const net = this.board.nets[index];
      return jumpButton(Kind.net, index, net.name, `${this.board.pinCountOf(net)} pins, ${millimetres(net.length)}`,
        this.select);
    }));
    if (found.length > most) {
      list.append(element("li", { class: "more" }, `and ${found.length - most} more: type to find them`));
    }
  }

  // A part with its components, which are listed when it is opened.
  showParts(list) {
    const parts = new Map();
    this.board.components.forEach((component, index) => {
      if (!parts.has(component.part)) parts.set(component.part, []);
      parts.get(component.part).push(index);
    });
    const byCount = [...parts].sort((a, b) => b[1].length - a[1].length || (a[0] < b[0] ? -1 : 1));
    for (const [part, components] of byCount) {
      const members = element("ul", {});
      const details = element("details", {},
        element("summary", {}, element("span", { class: "name" }, part || "no part"),
          element("span", { class: "note" }, `${components.length}`)), members);
      details.addEventListener("toggle", () => {
        if (!details.open || members.firstChild) return;
        members.append(...components.map((index) => {
          const component = this.board.components[index];
          return jumpButton(Kind.component, index, component.name, component.isBottom ? "bottom" : "top", this.select);
        }));
      });
      list.append(element("li", {}, details));
    }
  }

  showResults(list, results) {
    list.replaceChildren(...results.map(({ kind, index, name }) =>
      jumpButton(kind, index, name, kindNames[kind], this.select)));
  }

  // Says in words what is selected, with buttons to what it is connected with.
  showDetails(place, { kind, index }) {
    const { board } = this;
    const lines = [];
    const jumps = [];
    const most = 100;
    let pinCount = 0; // with those that are not listed
    if (kind === Kind.net) {
      const net = board.nets[index];
      pinCount = board.pinCountOf(net);
      place.append(element("h2", {}, `Net ${net.name}`));
      lines.push(`${pinCount} pins, ${millimetres(net.length)} of track`);
      for (const { layer, length } of net.lengths) lines.push(`${layer}: ${millimetres(length)}`);
      for (const pin of net.pins.slice(0, most)) jumps.push([Kind.pin, pin, board.pinName(pin), ""]);
    } else if (kind === Kind.component) {
      const component = board.components[index];
      pinCount = component.pinCount;
      place.append(element("h2", {}, `Component ${component.name}`));
      lines.push(`${component.part || "no part"}, on the ${component.isBottom ? "bottom" : "top"}`);
      lines.push(`x ${component.x / board.steps} mm, y ${component.y / board.steps} mm`);
      for (let i = 0; i < Math.min(most, component.pinCount); ++i) {
        const pin = component.firstPin + i;
        const net = board.pins[pin].net;
        jumps.push([Kind.pin, pin, board.pinName(pin), net < 0 ? "no net" : board.nets[net].name]);
      }
    } else {
      const pin = board.pins[index];
      place.append(element("h2", {}, `Pin ${board.pinName(index)}`));
      jumps.push([Kind.component, pin.component, board.components[pin.component].name, "component"]);
      if (pin.net >= 0) jumps.push([Kind.net, pin.net, board.nets[pin.net].name, "net"]);
    }
    place.append(...lines.map((line) => element("p", {}, line)));
    const list = element("ul", {}, ...jumps.map((jump) => jumpButton(...jump, this.select)));
    const rest = pinCount - jumps.length;
    if (rest > 0) list.append(element("li", { class: "more" }, `and ${rest} more pin${rest === 1 ? "" : "s"}`));
    place.append(list);
  }
}
