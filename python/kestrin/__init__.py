"""Printed-circuit boards from their four export files.

>>> board = kestrin.read("examples/board")
>>> board.components["U_1"].pins["3"].net.name
'GND'

Lengths and coordinates are in millimetres, angles in degrees; x points right and y up.
"""

from kestrin._kestrin import (
    Area,
    Board,
    Component,
    Components,
    Error,
    FileReport,
    Finding,
    Layer,
    Layers,
    Net,
    NetPin,
    NetPins,
    Nets,
    Pin,
    Pins,
    Place,
    Reading,
    SkippedLine,
    SkippedLines,
    Tracks,
    Vias,
    __version__,
)
from kestrin._reading import dump, read

__all__ = [name for name in dir() if not name.startswith("_")]
