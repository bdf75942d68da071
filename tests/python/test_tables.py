"""Tables of one board and of many, pictures and comparisons."""

from __future__ import annotations

import subprocess
import warnings
from pathlib import Path
from typing import Any, Callable

import kestrin
import numpy as np
import pytest
from conftest import SAMPLE, TOOL, tool

pandas = pytest.importorskip("pandas")


def rows(table: Any) -> list[list[Any]]:
    """The rows of a table, with None for what is missing."""
    return [[None if value is None or value != value else value for value in row] for row in table.to_numpy().tolist()]


@pytest.mark.parametrize("which", ["sample", "generated"])
def test_tables_have_the_values_of_the_document(which: str, generated: Path) -> None:
    board = kestrin.read(SAMPLE if which == "sample" else generated)
    document = board.to_dict()
    nets, components = document["nets"], document["components"]
    tables = board.tables()
    assert rows(tables["components"]) == [[*list(c.values())[:8], len(c["pins"])] for c in components]
    assert rows(tables["pins"]) == [[c["name"], *pin.values()] for c in components for pin in c["pins"]]
    assert rows(tables["vias"]) == [[net["name"], *via.values()] for net in nets for via in net["vias"]]
    assert rows(tables["areas"]) == [
        [net["name"], area["layer"], len(area["outline"]), len(area["holes"])] for net in nets for area in net["areas"]
    ]
    assert rows(tables["nets"].drop(columns=["tracks", "length"])) == [
        [net["name"], *(len(net[name]) for name in ("pins", "vias", "areas", "open"))] for net in nets
    ]
    legs = [sum(len(track["points"]) - 1 for track in net["tracks"]) for net in nets]
    assert tables["nets"]["tracks"].tolist() == legs
    assert tables["tracks"]["net"].tolist() == [net["name"] for net, count in zip(nets, legs) for _ in range(count)]
    assert np.allclose(tables["nets"]["length"], [sum(layer["mm"] for layer in net["length"]) for net in nets])


def test_the_table_of_findings_has_the_first_line_of_each(edited: Callable[..., Path]) -> None:
    folder = edited("neutral", ("'U_1-3'", "'U_1-99'"))
    found = tool("check", folder, "--format", "json")["findings"]
    assert rows(kestrin.read(folder).tables()["findings"]) == [
        [f["severity"], f["code"], f["message"], len(f["at"]), f["at"][0]["file"], f["at"][0]["line"]] for f in found
    ]
    assert found


PICTURES: list[tuple[str, dict[str, Any], list[str]]] = [
    ("a.svg", {}, []),
    ("a.svg", {"net": "GND", "tags": True}, ["--net", "GND", "--tags"]),
    ("a.svg", {"net": ["GND", "SDA"], "layers": ["TOP"]}, ["--net", "GND", "--net", "SDA", "--layers", "TOP"]),
    ("a.svg", {"view": "bottom", "theme": "print"}, ["--view", "bottom", "--theme", "print"]),
    ("a.svg", {"box": (0, 0.5, 20, 30), "width": 300}, ["--box", "0,0.5,20,30", "--width", "300"]),
    ("a.html", {}, []),
]


@pytest.mark.parametrize(("name", "arguments", "options"), PICTURES)
def test_pictures_are_those_of_the_tool(
    tmp_path: Path, name: str, arguments: dict[str, Any], options: list[str]
) -> None:
    kestrin.read(SAMPLE).draw(tmp_path / name, **arguments)
    subprocess.run([TOOL, "draw", str(SAMPLE), "-o", str(tmp_path / f"tool-{name}"), *options], check=True)
    assert (tmp_path / name).read_bytes() == (tmp_path / f"tool-{name}").read_bytes()


@pytest.mark.parametrize(
    ("arguments", "kind", "message"),
    [
        ({"path": "a.bmp"}, kestrin.Error, "its name must end in .svg"),
        ({"path": "missing/a.svg"}, kestrin.Error, 'cannot write "missing/a.svg"'),
        ({"path": "a.svg", "net": "GNDD"}, kestrin.Error, 'no net "GNDD"; did you mean "GND"'),
        ({"path": "a.svg", "box": (2, 0, 1, 1)}, kestrin.Error, "^box= needs four numbers"),
        ({"path": "a.svg", "width": 0}, kestrin.Error, "^width= needs a number"),
        ({"path": "a.svg", "view": "left"}, ValueError, "view is 'left'"),
    ],
)
def test_errors_of_drawing_speak_of_arguments(arguments: Any, kind: type[Exception], message: str) -> None:
    with pytest.raises(kind, match=message):
        kestrin.read(SAMPLE).draw(**arguments)


def test_a_picture_of_a_guess_is_warned_of(tmp_path: Path) -> None:
    board = kestrin.read(SAMPLE, traces=b"")
    with pytest.warns(UserWarning, match="not confirmed"):
        board.draw(tmp_path / "a.svg")
    with warnings.catch_warnings(), pytest.raises(UserWarning):
        warnings.simplefilter("error")
        board.draw(tmp_path / "a.svg")


def test_comparisons_are_those_of_the_tool(edited: Callable[..., Path], tmp_path: Path) -> None:
    folder = edited("neutral", ("SENS6 32.0 32.0 1 0", "SENS6 33.2 32.0 1 90"), ('"470"', '"680"'))
    before, after = kestrin.read(SAMPLE), kestrin.read(folder)
    difference = kestrin.compare(before, after)
    wanted = tool("diff", SAMPLE, folder, "--format", "json")
    found = [
        {
            "kind": change.kind,
            "name": change.name,
            "change": change.change,
            "details": [{"what": d.what, "before": d.before, "after": d.after} for d in change.details],
        }
        for change in difference.changes
    ]
    assert found == wanted["changes"] and len(found) == 2
    assert difference and difference.shift is None
    assert not kestrin.compare(before, before)
    with pytest.raises(kestrin.Error, match="only one of the two sets has a Traces file"):
        kestrin.compare(before, kestrin.read(neutral=SAMPLE / "board.neutral", geometry=SAMPLE / "board.geometry"))
    before.draw(tmp_path / "a.svg", against=after)
    subprocess.run([TOOL, "draw", SAMPLE, "--against", folder, "-o", tmp_path / "b.svg"], check=True)
    assert (tmp_path / "a.svg").read_bytes() == (tmp_path / "b.svg").read_bytes()


def test_a_shift_of_the_board_is_told() -> None:
    lines = (SAMPLE / "board.neutral").read_text().splitlines()
    for i, line in enumerate(lines):
        if line.startswith("COMP "):
            *names, x, y, side, angle = line.split(" ")
            lines[i] = " ".join([*names, str(float(x) + 1), y, side, angle])
    shifted = kestrin.read(SAMPLE, neutral="\n".join([*lines, ""]).encode())
    assert kestrin.compare(kestrin.read(SAMPLE), shifted).shift == (1.0, 0.0)
