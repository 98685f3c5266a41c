#!/usr/bin/env python3
"""Writes the WAV files the store tests read, built byte by byte from the published RIFF WAVE layout so that each
has exactly the shape it is meant to have. cases.txt lists the reader's cases: a file, the code it loads with and
the number of 16-bit values it gives. The other files are read by name."""
import pathlib
import struct

OK, NOT_WAVE, FORMAT_UNREADABLE, DATA_TRUNCATED, CHUNK_NOT_FOUND = 0, 0xE101, 0xE102, 0xE103, 265


def le16(v):
    return struct.pack("<H", v & 0xFFFF)


def le32(v):
    return struct.pack("<I", v & 0xFFFFFFFF)


def chunk(ident, body):
    return ident + le32(len(body)) + body + (b"\0" if len(body) % 2 else b"")


def fmt_body(tag, channels, rate, bits):
    align = channels * bits // 8
    return le16(tag) + le16(channels) + le32(rate) + le32(align * rate) + le16(align) + le16(bits)


def riff(chunks):
    return b"RIFF" + le32(4 + len(chunks)) + b"WAVE" + chunks


def pcm16(*values):
    return b"".join(le16(v) for v in values)


def simple(channels, rate, samples, bits=16):
    return riff(chunk(b"fmt ", fmt_body(1, channels, rate, bits)) + chunk(b"data", samples))


fmt = chunk(b"fmt ", fmt_body(1, 1, 22050, 16))
data = chunk(b"data", pcm16(1, 2, 3))
info = chunk(b"LIST", b"INFOISFT" + le32(5) + b"sox!\0")
cases = [
    ("plain", riff(fmt + data), OK, 3),
    ("list-between-fmt-and-data", riff(fmt + info + data), OK, 3),
    ("chunks-after-data", riff(fmt + data + info + chunk(b"id3 ", b"abc")), OK, 3),
    ("odd-chunk-padded-before-data", riff(fmt + chunk(b"junk", b"x") + data), OK, 3),
    ("fmt-after-data", riff(data + fmt), OK, 3),
    ("fmt-of-18-bytes", riff(chunk(b"fmt ", fmt_body(1, 1, 22050, 16) + le16(0)) + data), OK, 3),
    ("riff-size-left-wrong-by-a-pipe", b"RIFF" + le32(0x7FFFF024) + b"WAVE" + fmt + data, OK, 3),
    ("data-of-5-bytes", riff(fmt + chunk(b"data", pcm16(1, 2) + b"x")), OK, 2),
    ("data-of-5-bytes-the-last-missing", riff(fmt) + b"data" + le32(5) + pcm16(1, 2), OK, 2),
    ("empty-data", riff(fmt + chunk(b"data", b"")), OK, 0),
    ("empty-file", b"", NOT_WAVE, 0),
    ("riff-header-cut-short", b"RIFF" + le32(100) + b"WA", NOT_WAVE, 0),
    ("big-endian-rifx", b"RIFX" + riff(fmt + data)[4:], NOT_WAVE, 0),
    ("riff-but-not-wave", b"RIFF" + le32(4) + b"AVI ", NOT_WAVE, 0),
    ("fmt-shorter-than-16", riff(chunk(b"fmt ", fmt_body(1, 1, 22050, 16)[:14]) + data), NOT_WAVE, 0),
    ("fmt-cut-by-the-end", riff(b"fmt " + le32(16) + fmt_body(1, 1, 22050, 16)[:10]), FORMAT_UNREADABLE, 0),
    ("extra-size-cut-by-the-end", riff(b"fmt " + le32(18) + fmt_body(3, 1, 22050, 32)), FORMAT_UNREADABLE, 0),
    ("extra-bytes-cut-by-the-end", riff(b"fmt " + le32(40) + fmt_body(0xFFFE, 1, 22050, 16) + le16(22) + b"abc"),
     NOT_WAVE, 0),
    ("no-fmt-chunk", riff(data), CHUNK_NOT_FOUND, 0),
    ("no-data-chunk", riff(fmt + info), CHUNK_NOT_FOUND, 0),
    ("data-claims-one-value-more", riff(fmt) + b"data" + le32(8) + pcm16(1, 2, 3), DATA_TRUNCATED, 0),
    # The claim never decides the memory taken: 4 GB claimed is refused, not allocated.
    ("data-claims-4-gb", riff(fmt) + b"data" + le32(0xFFFFFFFF) + pcm16(1, 2), DATA_TRUNCATED, 0),
]
named = {
    # What the writer must produce: the plain 18-byte format record, whatever format was loaded.
    "written-mono": riff(chunk(b"fmt ", fmt_body(1, 1, 22050, 16) + le16(0)) + chunk(b"data", pcm16(1, -2, 0x1234))),
    "written-stereo": riff(chunk(b"fmt ", fmt_body(1, 2, 44100, 16) + le16(0)) + chunk(b"data", pcm16(1, -2))),
    # Plain PCM with an extra size, and an extensible 24-bit record with 22 extra bytes.
    "pcm-with-extra-size": riff(chunk(b"fmt ", fmt_body(1, 1, 11025, 16) + le16(9)) + chunk(b"data", pcm16(4))),
    "extensible-24-bit": riff(chunk(b"fmt ", fmt_body(0xFFFE, 2, 48000, 24) + le16(22) + le16(16) + le32(4) +
                                    b"0123456789abcdef") + chunk(b"data", b"abcdef")),
    "stereo-22050": simple(2, 22050, pcm16(-1, 1, -3, 0, 32767, 32767, -32768, -32767, 7, 8)),
    "mono-11025": simple(1, 11025, pcm16(9)),
    "stereo-48000-8-bit": simple(2, 48000, pcm16(1, 2, 3, 4), 8),
}
folder = pathlib.Path(__file__).parent
lines = []
for name, content, code, values in cases:
    (folder / (name + ".wav")).write_bytes(content)
    lines.append(f"{name}.wav {code:#x} {values}\n")
(folder / "cases.txt").write_text("".join(lines))
for name, content in named.items():
    (folder / (name + ".wav")).write_bytes(content)
