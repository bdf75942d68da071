"""Walking a board."""

from __future__ import annotations

import re
from pathlib import Path

import kestrin
import numpy as np
import pytest
from conftest import SAMPLE


@pytest.fixture(scope="module")
def board() -> kestrin.Board:
    return kestrin.read(SAMPLE)


def test_records_refer_to_each_other(board: kestrin.Board) -> None:
    pin = board.components["U_1"].pins["3"]
    assert pin.net.name == "LED_DRV"
    assert pin.net == board.nets["LED_DRV"]
    named = pin.net.pins["U_1-3"]
    assert (named.component, named.pin) == (board.components["U_1"], pin)
    assert len({pin, named.pin}) == 1
    assert {name: net.length for name, net in ((net.name, net) for net in board.nets)}["GND"] == pytest.approx(
        {"TOP": 11.5, "BOTTOM": 2.664213562}
    )


def test_lists_find_by_name_and_position(board: kestrin.Board) -> None:
    nets = board.nets
    assert [net.name for net in nets] == nets.names()
    assert nets[-1] == nets[len(nets) - 1] == nets[nets.names()[-1]]
    assert "GND" in nets and "GNDD" not in nets
    assert nets.get("GNDD") is None
    with pytest.raises(KeyError, match='no net "GNDD"; did you mean "GND"'):
        nets["GNDD"]
    for half, known in (("\udce9", "?"), ("GN\0D", r"GN\x00D")):
        assert half not in nets and nets.get(half) is None
        with pytest.raises(KeyError, match=re.escape(f'no net "{known}"')):
            nets[half]
    assert nets[3] in nets and kestrin.read(SAMPLE).nets[3] not in nets and 3 not in nets
    for position in (len(nets), -len(nets) - 1):
        with pytest.raises(IndexError):
            nets[position]
    with pytest.raises(TypeError):
        nets[1.5]  # type: ignore[index]


@pytest.mark.parametrize("count", [6, 60])
def test_of_records_of_one_name_the_first_is_found(count: int) -> None:
    names = [name for i in range(20) for name in (f"C{i}", "TWICE", f"D{i}")][:count]
    text = "".join(f"COMP {name} IC-1 SYM_1 QFP {x} 0 1 0\n" for x, name in enumerate(names))
    components = kestrin.read(neutral=f"###Component placement\n{text}".encode()).components
    assert components.names() == names
    for name in names:
        assert components[name] == components[names.index(name)]


def test_every_net_is_found_by_its_name(generated: Path) -> None:
    nets = kestrin.read(generated).nets
    assert [nets[name] for name in nets.names()] == list(nets)


def test_only_the_module_makes_objects(board: kestrin.Board) -> None:
    kinds = [kind for kind in vars(kestrin).values() if isinstance(kind, type) and kind is not kestrin.Error]
    assert kestrin.Board in kinds and kestrin.Nets in kinds and kestrin.Tracks in kinds
    for kind in kinds:
        for make in (kind, lambda: kind.__new__(kind), lambda: object.__new__(kind)):
            with pytest.raises(TypeError):
                make()


def test_a_repr_says_what_it_is(board: kestrin.Board) -> None:
    assert repr(board.components["U_1"].pins["3"]) == (
        "<kestrin.Pin: name='3', x=28.0, y=19.5, padstack='SMD_15X05', net='LED_DRV'>"
    )
    assert "15 nets" in repr(board) and "\n" not in repr(board)
    assert repr(board.nets) == "<kestrin.Nets: 15>"
    assert repr(board.tracks) == "<kestrin.Tracks: 64 legs>"


def legs_of(document: dict) -> list[list[float]]:  # type: ignore[type-arg]
    """The legs of a board's document, as rows."""
    return [
        [*start, *end, track["layer"], track["width"] or np.nan, net]
        for net, record in enumerate(document["nets"])
        for track in record["tracks"]
        for start, end in zip(track["points"], track["points"][1:])
    ]


@pytest.mark.parametrize("which", ["sample", "generated"])
def test_arrays_have_the_values_of_the_document(which: str, generated: Path) -> None:
    board = kestrin.read(SAMPLE if which == "sample" else generated)
    document = board.to_dict()
    columns = ("x1", "y1", "x2", "y2", "layer", "width", "net")
    rows = np.column_stack([getattr(board.tracks, name) for name in columns])
    np.testing.assert_array_equal(rows, np.array(legs_of(document)))
    vias = [(via["x"], via["y"], via["name"]) for net in document["nets"] for via in net["vias"]]
    kinds = [board.via_kinds[kind] for kind in board.vias.kind]
    assert list(zip(board.vias.x, board.vias.y, kinds)) == vias
    for index, net in enumerate(board.nets):
        assert set(net.tracks.net) <= {index}
        assert sum(len(other.tracks) for other in board.nets) == len(board.tracks)
        assert [area.outline.tolist() for area in net.areas] == [
            area["outline"] for area in document["nets"][index]["areas"]
        ]
        assert net.open.tolist() == document["nets"][index]["open"]
    assert board.outline is not None and board.outline.tolist() == document["outline"]


def test_arrays_are_views_that_cannot_be_written_to(board: kestrin.Board) -> None:
    tracks = board.nets["GND"].tracks
    for array in (board.tracks.x1, tracks.width, board.vias.y, board.vias.kind, board.outline):
        assert array is not None and not array.flags.writeable and not array.flags.owndata
        with pytest.raises(ValueError):
            array[0] = 1
    assert np.shares_memory(board.tracks.x1, board.tracks.x1)
    assert np.shares_memory(board.tracks.net, tracks.net)
    empty = kestrin.read(tech=b"")
    assert [len(empty.tracks.x1), len(empty.vias.x), len(empty.nets), empty.outline] == [0, 0, 0, None]
