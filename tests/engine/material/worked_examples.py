#!/usr/bin/env python3
"""Works the rules of the frequency box out by themselves, in exact fractions, and writes
worked_examples.txt. Run it only when a rule changes; it shares nothing with the program.

Tables of the scales by their places on the line of fifths, C = 15."""
from fractions import Fraction as F
from math import floor
import random

SCALES = {0: [15, 17, 19, 14, 16, 18, 20],
          1: [15, 17, 12, 14, 16, 11, 18, 13, 20],
          2: [15, 10, 17, 12, 19, 14, 16, 11, 18, 13, 20]}
DIRECT = {0: 13, 1: 17, 2: 19}


def half_even(x):
    return round(F(x))


def trunc(x):
    return int(x)


def offered(mode, abfr_iv, degree):
    """Signed values; degree None for all degrees."""
    scale = SCALES[mode]
    if abfr_iv == 1 and degree is not None:
        values = []
        for q in scale:
            d = q - scale[degree]
            if d in (7, -7):
                continue
            values += [1, -1] if d == 0 else [2 * d, (-1 if d > 0 else 1) * (2 * abs(d) + 1)]
        return values
    codes = range(1, len(scale) + 1) if abfr_iv == 0 else [
        c + 2 if c > 13 else c for c in range(1, DIRECT[mode] + 1)]
    return [s * c for c in codes for s in (1, -1)]


def step_list(mode):
    """How often each row must stand in the list of first degrees."""
    scale, w = SCALES[mode], {q: 0 for q in SCALES[mode]}
    for c in range(2, DIRECT[mode] + 1):
        code = c + 2 if c > 13 else c
        s = code // 2 if code % 2 == 0 else -(code // 2)
        hits = [q for q in scale if q + s in scale]
        for q in hits:
            w[q] += len(scale) // len(hits)
    low = min(100, *w.values())
    return [w[q] + 1 - low for q in scale]


def test_length(mode, abfr_iv, degree, invzahl, beat):
    rows = len(offered(mode, abfr_iv, degree))
    asked = invzahl + (degree is None)

    def even(n):
        return n + n % 2

    def dauer(n):
        x = floor(F(beat * (invzahl + 2), 1000) * n)
        x = half_even(floor(F(1800, 1000) * n) + x)
        x += F(n * asked * (20 if abfr_iv == 0 else 25), 10)
        return (floor((x - 1) / 10) + 1) * 10

    n = rows * 4 if degree is not None else rows * 40 // half_even(F(2 * invzahl + 1, 2) * 10)
    n = even(n)
    if dauer(n) > 600 or degree is not None:
        n = even(floor(F(n, 8) * 5))
    elif dauer(n) < 180:
        n = even(half_even(F(n, 4) * 6))
    return n, half_even(F(n * asked, 2)), dauer(n)


def training(mode, abfr_iv, seed, tasks, right):
    """A training of single answers: (value, wrong answers, repeats, lateness) and what follows."""
    chance = random.Random(seed)
    values = offered(mode, abfr_iv, None)
    box = [[v, 30 // len(values) if len(values) * 4 < 30 else 4] for v in values]
    start, lines = box[0][1], []
    for _ in range(tasks):
        value = chance.choice(values)
        wrong = 0 if chance.random() < right else chance.randint(1, 4)
        repeats = chance.choice([0, 0, 0, 1, 2, 5])
        late = chance.choice([F(0), F(0), F(1), F(3, 2), F(2), F(47, 10)]) if wrong == 0 else F(0)
        others = [v for v in values if v != value and (v > 0) == (value > 0)]
        confused = chance.sample(others, wrong)
        rf = F(-4) if wrong == 0 else F(2 * wrong)
        rf = min(F(0), repeats + rf + late) if wrong == 0 else min(F(8), repeats + rf)
        for row in box:
            if row[0] == value and rf != 0:
                row[1] = trunc(row[1] + rf)
        for v in confused:
            next(row for row in box if row[0] == v)[1] += 1
        for i in range(len(box)):  # exchange sort, highest first
            for j in range(i + 1, len(box)):
                if box[j][1] > box[i][1]:
                    box[i], box[j] = box[j], box[i]
        total = sum(w for _, w in box if w > 0)
        ceiling = start * len(box) * 2
        state, shown = (4, 0) if total < 1 else (4, ceiling) if total > ceiling - 1 else (1, total)
        entries = None
        if 0 < total < len(box) * 8 - 1:
            low = box[-1][1]
            add = 0 if low >= 1 else abs(low) + 1
            entries = (sum(w + add for _, w in box), sum(w + add for _, w in box if w > 0))
        statistic = (2 * rf if rf < 0 else rf) - 8
        lines.append((value, confused, repeats, late, statistic, shown, state,
                      100 * shown // ceiling, entries or (0, 0), [w for _, w in box[:3]], box[-1][1]))
        if state == 4:
            break
    return lines


def main():
    out = ['# Written by worked_examples.py.',
           '# steps mode, then how often each row stands in the list of first degrees']
    out += [row('steps', mode, *step_list(mode)) for mode in (0, 1, 2)]
    out.append('# length mode abfr_iv degree(-1: all) invzahl beat aufg_gesamt matboxmax aufg_dauer')
    for mode in (0, 1, 2):
        for abfr in (0, 1):
            for degree in (None, 0, len(SCALES[mode]) - 1):
                for invzahl in ((1, 2, 3, 4) if degree is None else (1,)):
                    for beat in (300, 428, 1500, 2000):
                        out.append(row('length', mode, abfr, -1 if degree is None else degree,
                                       invzahl, beat, *test_length(mode, abfr, degree, invzahl, beat)))
    out.append('# answer mode abfr_iv task value confused(4) repeats late statistic box_summe zustand'
               ' percentage matboxmax matbox_vorn heaviest(3) lightest')
    for mode, abfr, seed, right in ((0, 0, 1, 0.9), (1, 1, 2, 0.75), (2, 0, 3, 0.35), (0, 1, 4, 0.5)):
        for task, (value, confused, repeats, late, statistic, total, state, percent, entries, top,
                   low) in enumerate(training(mode, abfr, seed, 60, right)):
            confused = (confused + [0] * 4)[:4]
            out.append(row('answer', mode, abfr, task, value, *confused, repeats, float(late),
                           float(statistic), total, state, percent, *entries, *top, low))
    with open(__file__.replace('.py', '.txt'), 'w', encoding='ascii') as table:
        table.write('\n'.join(out) + '\n')


def row(*cells):
    return ' '.join(map(str, cells))


if __name__ == '__main__':
    main()
