"""The table of ratios, in a form that a page can take over."""

from dataclasses import dataclass, field


@dataclass
class Line:
    name: str
    what: str
    ratio: float
    aim: float | None
    base_ns: float | None  # what 1.00 stands for
    others: dict[str, float] = field(default_factory=dict)
    note: str = ""


def shown(ratio: float | None) -> str:
    return "" if ratio is None else f"{ratio:.2f}"


def duration(nanoseconds: float | None) -> str:
    if nanoseconds is None:
        return ""
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def print_table(lines: list[Line], peers: list[str], names: dict[str, str]) -> None:
    rows = [["ours", "at most", "what", "1.00 is", *(names[peer] for peer in peers)]]
    rows.append(["-"] * len(rows[0]))
    for line in lines:
        extra = "; ".join(f"{side.replace('_', ' ')} {shown(value)}"
                          for side, value in line.others.items() if side not in names)
        what = line.what + (f" ({extra})" if extra else "")
        rows.append([shown(line.ratio), shown(line.aim), what, line.note or duration(line.base_ns),
                     *(shown(line.others.get(peer)) for peer in peers)])
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    for row in rows:
        cells = [cell.ljust(width, "-" if cell == "-" else " ")
                 for cell, width in zip(row, widths, strict=True)]
        print("| " + " | ".join(cells) + " |")
