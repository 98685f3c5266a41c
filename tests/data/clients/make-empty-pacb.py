#!/usr/bin/env python3
"""Writes empty-pacb.dbf: the empty client table as the published dBASE III layout lays it down, dated
2024-05-17, typed out here from the layout rather than taken from the program."""
import pathlib
import struct

FIELDS = [("CODIGO", "N", 4), ("NOME", "C", 60), ("TIPO", "N", 4), ("DATANASC", "C", 12), ("ENDERECO", "C", 60),
          ("CIDADE", "C", 30), ("ESTADO", "C", 4), ("CEP", "C", 12), ("FONER", "C", 14), ("FONEC", "C", 14),
          ("OBS", "C", 100)]

header_length = 32 + 32 * len(FIELDS) + 1                 # 385
record_length = 1 + sum(length for _, _, length in FIELDS)  # 315
out = struct.pack("<B3BIHH20x", 0x03, 2024 - 1900, 5, 17, 0, header_length, record_length)
for name, kind, length in FIELDS:
    out += struct.pack("<11sc4xBB14x", name.encode(), kind.encode(), length, 0)
out += b"\x0D\x1A"
pathlib.Path(__file__).with_name("empty-pacb.dbf").write_bytes(out)
