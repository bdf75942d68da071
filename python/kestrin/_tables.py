"""A board as data frames."""

from __future__ import annotations

from typing import Any

import numpy
import pandas

from kestrin._kestrin import Board


def of(board: Board) -> dict[str, Any]:
    """The tables of a board."""
    tables = board._tables()
    names = _column(tables["nets"]["name"])
    tables["tracks"]["net"] = names[tables["tracks"]["net"]]
    return {
        name: pandas.DataFrame({title: _column(values) for title, values in columns.items()})
        for name, columns in tables.items()
    }


def _column(values: Any) -> Any:
    """Texts as an array of objects, even if there are none."""
    return numpy.array(values, dtype=object) if isinstance(values, list) else values
