#!/usr/bin/env python3
"""make-case-ranges.py: writes brimlow/system/src/caseRanges.h, the upper and lower case of every character that has one,
from the Unicode data that python3 brings."""

import subprocess
import sys
import unicodedata
from pathlib import Path

TARGET = Path(__file__).resolve().parent.parent / "brimlow/system/src/caseRanges.h"


def simple(mapped, titled):
    """The mapping to one character, where str.upper and str.lower may give several."""
    return mapped if len(mapped) == 1 else titled if len(titled) == 1 else None


def upper(character):
    return simple(character.upper(), character.title())


def lower(character):
    # The only character whose lower case takes two characters in str.lower.
    return "i" if character == "\u0130" else character.lower()


def ranges(mapping):
    """[first, last, step, difference]: neighbours, or every second one, with the same difference."""
    result = []
    for code in range(sys.maxunicode + 1):
        if 0xD800 <= code <= 0xDFFF:
            continue
        mapped = mapping(chr(code))
        difference = ord(mapped) - code if mapped else 0
        if difference == 0:
            continue
        assert (code < 0x10000) == (code + difference < 0x10000), hex(code)
        if result:
            first, last, step, same = result[-1]
            gap = code - last
            if same == difference and (gap == step or first == last and gap <= 2):
                result[-1] = [first, code, gap, difference]
                continue
        result.append([code, code, 1, difference])
    return result


def table(name, mapping):
    rows = ",\n".join("{0x%04X, 0x%04X, %d, %d}" % tuple(row) for row in ranges(mapping))
    return f"inline constexpr CaseRange {name}[] = {{\n{rows}}};\n"


text = f"""// Made by tools/make-case-ranges.py from Unicode {unicodedata.unidata_version}.
#pragma once

#include <cstdint>

namespace Core
{{

// Characters from first to last in steps of that size, each of which has its other case at that distance.
struct CaseRange
{{
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t step;
    std::int32_t distance;
}};

// In ascending order, without overlap.
{table("upperCaseRanges", upper)}
{table("lowerCaseRanges", lower)}
}} // namespace Core
"""
TARGET.write_text(text)
subprocess.run(["clang-format", "-i", str(TARGET)], check=True)
