"""Prints what loading and posing take in Python and in C++, by turns: python_times.py LOAD_AND_POSE FILE..."""

import statistics
import subprocess
import sys
import time

import varorobotmodel as vr


def median_microseconds(action):
    """Of the calls that fit in some 20 milliseconds, at least three."""
    times, end = [], time.perf_counter() + 0.02
    while len(times) < 3 or time.perf_counter() < end:
        begin = time.perf_counter()
        action()
        times.append((time.perf_counter() - begin) * 1e6)
    return statistics.median(times)


def python_times(file):
    model = vr.load(file)
    kinematics = vr.Kinematics(model)
    q = vr.Configuration(kinematics)
    actions = [lambda: vr.load(file), lambda: kinematics.poses(q)]
    rounds = [[median_microseconds(action) for action in actions] for _ in range(40)]
    return [min(times) for times in zip(*rounds)]


def cpp_times(program, file):
    return [float(time) for time in subprocess.check_output([program, file], text=True).split()]


def main(program, *files):
    print("| file | links | load, C++ (us) | load, Python (us) | ratio | poses, C++ (us) | poses, Python (us) | more (us) |")
    print("| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: |")
    for file in files:
        turns = [(cpp_times(program, file), python_times(file)) for _ in range(3)]
        cpp, python = ([min(times) for times in zip(*each)] for each in zip(*turns))
        print(
            f"| {file.rsplit('/', 1)[-1]} | {len(vr.load(file).links)} | {cpp[0]:.1f} | {python[0]:.1f} "
            f"| {python[0] / cpp[0]:.2f} | {cpp[1]:.2f} | {python[1]:.2f} | {python[1] - cpp[1]:.2f} |"
        )


main(*sys.argv[1:])
