"""Many boards, on Dask."""

from __future__ import annotations

import os
from typing import Any, Iterable, Optional

from kestrin._reading import Path, read


def tables(paths: Iterable[Path]) -> dict[str, Any]:
    """The tables of many sets as data frames of Dask, a partition for each set.

    paths are the sets, as read takes them. The tables are those of Board.tables, with the path of the set as the first
    column, and "failures": a row for each set that cannot be read, with the error, and its file and line if known.

    Nothing is read before the frames are computed. Compute or write them together, or else sets are read again.
    """
    import dask.dataframe
    from dask import delayed

    if isinstance(paths, (str, bytes, os.PathLike)):
        raise TypeError(f"paths is one path, {paths!r}; give a list of them")
    parts = [delayed(_part)(os.fspath(path)) for path in paths]
    if not parts:
        parts = [delayed(_empty)()]
    return {
        name: dask.dataframe.from_delayed([part[name] for part in parts], meta=empty, verify_meta=False)
        for name, empty in _empty().items()
    }


def _part(path: str) -> dict[str, Any]:
    """The tables of a set. If it cannot be read, they are empty, but for the failures."""
    try:
        found = {"failures": _failures([])}
        for name, table in read(path).tables().items():
            table.insert(0, "set", path)
            found[name] = table
    except Exception as error:  # the other sets are to be read all the same
        file, line = getattr(error, "file", None), getattr(error, "line", None)
        found = dict(_empty(), failures=_failures([(path, str(error) or repr(error), file, line or 0)]))
    return found


def _empty() -> dict[str, Any]:
    """All tables, without rows."""
    found = {name: table.iloc[:0].copy() for name, table in read(tech=b"").tables().items()}
    for table in found.values():
        table.insert(0, "set", table.index.astype(object))
    return {**found, "failures": _failures([])}


def _failures(rows: list[tuple[str, str, Optional[str], int]]) -> Any:
    import pandas

    types = {"set": object, "error": object, "file": object, "line": "int64"}
    return pandas.DataFrame(rows, columns=list(types)).astype(types)
