"""Holds what summary_figures prints against the standard library's statistics: three patients' real readings, all and in
short spans, and samples of none, one and two readings, with cells that are no number among them."""
import csv
import math
import pathlib
import statistics
import subprocess
import sys
import tempfile

program, data = sys.argv[1], pathlib.Path(sys.argv[2])
header = "period n mean median sd lowest highest".split()


def figures(values):
    if not values:
        return [0] + [None] * 5
    deviation = statistics.stdev(values) if len(values) > 1 else None
    return [len(values), statistics.mean(values), statistics.median(values), deviation, min(values), max(values)]


def number(cell):
    try:
        return float(cell) if set(cell.strip()) <= set("0123456789.+-") else None
    except ValueError:
        return None


def check(name, days):
    """Each day a list of seven cells."""
    with tempfile.TemporaryDirectory() as folder:
        table = pathlib.Path(folder) / "7VXData"
        table.write_text("".join("@#@".join([f"{i % 12 + 1}/1/2020", *day, "", "", ""]) + "\n"
                                 for i, day in enumerate(days)))
        run = subprocess.run([program, table], capture_output=True, text=True, check=True)
    printed = [line.split("\t") for line in run.stdout.splitlines()]
    assert printed[0] == header, printed[0]
    columns = [[value for day in days if (value := number(day[i])) is not None and value > 0] for i in range(7)]
    wanted = [figures(sum(columns, []))] + [figures(column) for column in columns]
    assert [row[0] for row in printed[1:]] == ["all", *"1234567"]
    for row, want in zip(printed[1:], wanted):
        for what, text, value in zip(header[1:], row[1:], want):
            good = text == "" if value is None else math.isclose(float(text), value, rel_tol=1e-14)
            assert good, f"{name}, period {row[0]}, {what}: {text!r} instead of {value!r}"
    unreadable = sum(bool(cell.strip()) for day in days for cell in day) - len(sum(columns, []))
    assert run.stderr == (f"{unreadable} readings could not be read\n" if unreadable else ""), run.stderr


patients = 0
for path in sorted(data.glob("patient-*.csv")):
    days = [row[1:8] for row in csv.reader(path.open())]
    patients += 1
    for span in (len(days), 30, 7, 2, 1):
        check(f"{path.name}, {span} days", days[-span:])
assert patients == 3
none = [""] * 7
check("no days", [])
check("no readings", [none])
check("one reading", [["5.6", *none[1:]]])
check("two readings", [["5.6", "7", *none[2:]], none])
check("no numbers", [["5,6", "LO", "1e3", "0", "-4", " 6.1 ", "0x10"], ["5.6.7", "inf", "nan", ".5", "7.", "6 7", " "]])
print("all figures agree")
