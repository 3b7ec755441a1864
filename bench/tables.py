"""One row a figure, with its limit; rows as a table."""

import math


class Row:
    """What was measured. A value of None has not been built, which is told and is no failure."""

    def __init__(self, name, unit, program, baseline, ratio, digits=1, *,
                 at_least=None, at_most=None, faster=None, program_at_least=None,
                 program_at_most=None):
        self.name, self.unit, self.digits = name, unit, digits
        self.program, self.baseline, self.ratio = program, baseline, ratio
        self.missed = False
        limits = []
        if at_least is not None:
            limits.append(f"at least {at_least}")
            self.require(ratio >= at_least)
        if at_most is not None:
            limits.append(f"at most {at_most}")
            self.require(ratio <= at_most)
        if faster is not None:
            limits.append(f"{faster} times faster")
            self.ratio = 1 / ratio
            self.require(self.ratio >= faster)
        if program_at_least is not None:
            limits.append(f"at least {program_at_least} {unit}".rstrip())
            self.require(program is None or program >= program_at_least)
        if program_at_most is not None:
            limits.append(f"at most {program_at_most} {unit}".rstrip())
            self.require(program is None or program <= program_at_most)
        self.limit = ", ".join(limits)

    def require(self, met):
        self.missed = self.missed or not met

    @property
    def verdict(self):
        if self.program is None:
            return "not built"
        return "missed" if self.missed else "met" if self.limit else ""

    def cells(self):
        def shown(value):
            return "" if value is None else f"{value:,.{self.digits}f} {self.unit}".rstrip()

        ratio = "" if self.ratio is None or not math.isfinite(self.ratio) else f"{self.ratio:.2f}"
        return [self.name, shown(self.program), shown(self.baseline), ratio, self.limit,
                self.verdict]

    def line(self):
        name, program, baseline, ratio, limit, verdict = self.cells()
        return f"{name}: {program} | {baseline} | {ratio} | {limit} | {verdict}"

    def as_json(self):
        return {"figure": self.name, "unit": self.unit, "program": self.program,
                "baseline": self.baseline, "ratio": self.ratio, "limit": self.limit,
                "met": None if self.program is None or not self.limit else not self.missed}


HEAD = ["figure", "Lumikey", "baseline", "ratio", "limit", ""]


def markdown(tables):
    """One table; the titles are rows of their own."""
    rows = [HEAD]
    for title, content in tables.items():
        rows.append([f"**{title}**", "", "", "", "", ""])
        rows += [row.cells() for row in content]
    widths = [max(len(row[column]) for row in rows) for column in range(len(HEAD))]
    rows.insert(1, ["-" * max(3, width) for width in widths])
    return "\n".join("| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |"
                     for row in rows)
