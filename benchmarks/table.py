"""The table that the benchmarks print: rows of cells in Markdown, with ratios, targets, and whether each was
met."""


class Table:
    def __init__(self):
        self.rows = []
        self.met = True

    def add(self, work, ours, yardstick, value, target, limit, measured, closed=""):
        met = measured <= limit
        self.met = self.met and met
        self.rows.append((work, ours, closed, yardstick, value, target, "yes" if met else "**no**"))

    def add_without_target(self, work, ours, yardstick, value):
        self.rows.append((work, ours, "", yardstick, value, "", ""))

    def add_ratio(self, work, ours, yardstick, name, limit, closed=None):
        ratio = ours / yardstick
        self.add(work, duration(ours), f"{name}: {duration(yardstick)}", f"{ratio:.3g}", f"at most {limit}",
                 limit, ratio, "" if closed is None else f"{duration(closed)} ({closed / yardstick:.2f})")

    def write(self):
        head = ("work", "Velmora", "standard error closed", "yardstick", "ratio or figure", "target", "met")
        for row in (head, ["---"] * len(head), *self.rows):
            print("| " + " | ".join(row) + " |")


def duration(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"
