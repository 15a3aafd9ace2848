# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Waiting for conditions, never for a fixed time."""

import os
import time

from gi.repository import GLib

# A build with sanitizers on a loaded machine is many times slower; a deadline only costs time when a test fails.
DEADLINE = float(os.environ.get("ORVANTO_E2E_DEADLINE", "30"))
INTERVAL = 0.01


class Gone(LookupError):
    """The widget that was asked for is not there (yet, or any more)."""


def until(condition, what, deadline=None):
    """Asks condition() again and again until it answers something true, and returns that."""
    deadline = DEADLINE if deadline is None else deadline
    end = time.monotonic() + deadline
    fault = None
    while True:
        try:
            answer = condition()
            if answer:
                return answer
            fault = f"last answer: {answer!r}"
        except (Gone, GLib.Error) as error:
            fault = str(error)
        if time.monotonic() > end:
            raise AssertionError(f"waited {deadline:g} s in vain for {what}; {fault}")
        time.sleep(INTERVAL)


def until_equal(expected, read, what, deadline=None):
    """Waits until read() returns expected; the failure text shows what it returned last."""
    last = []

    def matches():
        last[:] = [read()]
        return last[0] == expected

    try:
        until(matches, what, deadline)
    except AssertionError as error:
        raise AssertionError(f"{error}\nexpected: {expected!r}\nfound:    {last[0] if last else None!r}") from None


def until_still(read, what):
    """Waits until read() returned the same value for three rounds, and returns it."""
    rounds = []

    def is_still():
        value = read()
        if rounds and rounds[-1] != value:
            rounds.clear()
        rounds.append(value)
        return len(rounds) >= 3

    until(is_still, what)
    return rounds[-1]
