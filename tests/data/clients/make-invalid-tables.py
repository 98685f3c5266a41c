#!/usr/bin/env python3
"""Writes invalid/*.dbf: tables the client list must refuse and never overwrite. Tables of another tool whose fields
are not the eleven of the client table, and a plain two-row client table damaged one header byte at a time. The
layout is typed out here from the published dBASE III description, as in make-empty-pacb.py."""
import pathlib
import struct

FIELDS = [("CODIGO", "N", 4), ("NOME", "C", 60), ("TIPO", "N", 4), ("DATANASC", "C", 12), ("ENDERECO", "C", 60),
          ("CIDADE", "C", 30), ("ESTADO", "C", 4), ("CEP", "C", 12), ("FONER", "C", 14), ("FONEC", "C", 14),
          ("OBS", "C", 100)]


def table(fields, rows):
    header_length = 32 + 32 * len(fields) + 1
    record_length = 1 + sum(length for _, _, length in fields)
    out = struct.pack("<B3BIHH20x", 0x03, 2024 - 1900, 5, 17, len(rows), header_length, record_length)
    for name, kind, length in fields:
        out += struct.pack("<11sc4xBB14x", name.encode(), kind.encode(), length, 0)
    out += b"\x0D"
    for row in rows:
        values = row + [""] * (len(fields) - len(row))
        out += b" " + b"".join(v.encode().ljust(length) for v, (_, _, length) in zip(values, fields))
    return out + b"\x1A"


def damaged(changes):
    out = bytearray(table(FIELDS, [["1", "Client 1"], ["2", "Client 2"]]))
    for offset, value in changes.items():
        out[offset] = value
    return bytes(out)


twelve = FIELDS + [("EMAIL", "C", 40)]
foreign_row = [["2", "Outra"]]
cases = {
    "ten-fields": table(FIELDS[:-1], foreign_row),
    "twelve-fields": table(twelve, foreign_row),
    "eleven-fields-but-no-nome": table(twelve[:1] + twelve[2:], foreign_row),
    "memo-field": table(FIELDS[:-1] + [("OBS", "M", 10)], foreign_row),  # notes in a memo file out of reach
    "shorter-than-a-header": damaged({})[:20],
    "empty": b"",
    "header-length-past-the-end": damaged({9: 0x40}),
    "header-length-too-small": damaged({8: 20, 9: 0}),
    "descriptor-running-past-the-header": damaged({8: 32 + 16, 9: 0}),
    "no-terminator-after-the-descriptors": damaged({384: ord("X")}),
    "fields-longer-than-the-record": damaged({10: 0xC8, 11: 0}),
    "a-field-of-no-width": damaged({32 + 32 * 3 + 16: 0}),
}
folder = pathlib.Path(__file__).with_name("invalid")
folder.mkdir(exist_ok=True)
for name, data in cases.items():
    (folder / (name + ".dbf")).write_bytes(data)
