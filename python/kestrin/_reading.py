"""Reading export sets."""

from __future__ import annotations

import math
import os
from typing import Any, Literal, Optional, Union

from kestrin import _kestrin
from kestrin._kestrin import Board

Path = Union[str, "os.PathLike[str]"]
File = Union[Path, bytes, bytearray, memoryview, None]
Sense = Literal["ccw", "cw"]
Encoding = Literal["auto", "utf-8", "latin-1"]


def _sources(
    paths: tuple[Path, ...], files: dict[str, File], encoding: Encoding, strict: bool, partial: bool
) -> _kestrin._Sources:
    _check("encoding", encoding, ("auto", "utf-8", "latin-1"))
    named, contents = {}, {}
    for name, file in files.items():
        if isinstance(file, (bytes, bytearray, memoryview)):
            contents[name] = bytes(file)
        elif file is not None:
            named[name] = _path_bytes(file)
    if not (paths or named or contents):
        raise _kestrin.Error(
            "no file to read; name a folder or files, or give contents with an argument such as traces="
        )
    return _kestrin._Sources([_path_bytes(path) for path in paths], named, contents, encoding, strict, partial)


def _path_bytes(path: Path) -> bytes:
    name = os.fsencode(path)
    if not name or b"\0" in name:
        raise ValueError(f"{path!r} is not a path")
    return b"./-" if name == b"-" else name  # alone, it would be standard input


def _check(name: str, value: object, choices: tuple[object, ...]) -> None:
    if value not in choices:
        raise ValueError(f"{name} is {value!r}; it must be one of {', '.join(map(repr, choices))}")


def read(
    *paths: Path,
    tech: File = None,
    neutral: File = None,
    geometry: File = None,
    traces: File = None,
    rotation: Optional[Sense] = None,
    bottom: Optional[Sense] = None,
    bottom_turn: Optional[Literal[0, 180]] = None,
    width_step: Optional[float] = None,
    encoding: Encoding = "auto",
    strict: bool = False,
    partial: bool = False,
) -> Board:
    """Reads an export set and the board that it describes.

    paths are a folder with the set, or files whose endings tell what they are. tech, neutral, geometry and traces
    are single files, whatever their names are: a path, or the contents as bytes.

    What the files leave open is fitted to the data (Board.reading), unless it is given: rotation and bottom are how
    components on the top and on the bottom turn, bottom_turn the degrees added to the angle of those on the bottom,
    and width_step the unit of widths that are written with digits only, in units of the Traces file.

    strict reads the Traces file by its grammar, too (FileReport.syntax_errors).

    Raises Error if a file cannot be read to its end; with partial, what was read before is a board all the same, and
    Board.report says where a reader stopped.

    Other threads run meanwhile, and Ctrl-C ends it.
    """
    _check("rotation", rotation, (None, "ccw", "cw"))
    _check("bottom", bottom, (None, "ccw", "cw"))
    _check("bottom_turn", bottom_turn, (None, 0, 180))
    if width_step is not None and not 0 < width_step < math.inf:
        raise ValueError(f"width_step is {width_step!r}; it must be greater than 0")
    files = {"tech": tech, "neutral": neutral, "geometry": geometry, "traces": traces}
    turn = "" if bottom_turn is None else str(bottom_turn)
    words = _kestrin._ReadingWords(rotation or "", bottom or "", turn, width_step)
    return _kestrin._read(_sources(paths, files, encoding, strict, partial), words)


def dump(
    *paths: Path,
    tech: File = None,
    neutral: File = None,
    geometry: File = None,
    traces: File = None,
    strict: bool = False,
    partial: bool = False,
) -> dict[str, Any]:
    """The models of the files as nested plain data: what `kestrin dump` prints.

    A text has one character for each byte. The arguments are those of read.
    """
    files = {"tech": tech, "neutral": neutral, "geometry": geometry, "traces": traces}
    return _kestrin._dump(_sources(paths, files, "latin-1", strict, partial))
