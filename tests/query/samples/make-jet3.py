#!/usr/bin/env python3
"""Makes jet3.mdb, a small Access 97 file: no program that is still around writes one.

It holds what is particular to that format: a code page, offsets of one byte with a jump table for longer rows, a deleted
row, one that moved to another page, and memos in their cell, in a row of their own and in a chain of rows.
"""

import struct
import sys

PAGE = 2048
FIXED_SIZES = {1: 1, 2: 1, 3: 2, 4: 4, 5: 8, 6: 4, 7: 8, 8: 8}
FIXED_FORMATS = {2: "<B", 3: "<h", 4: "<i", 5: "<q", 6: "<f", 7: "<d", 8: "<d"}
TRUTH, INTEGER16, INTEGER32, SINGLE, DOUBLE, TEXT, OLE, MEMO = 1, 3, 4, 6, 7, 10, 11, 12
DELETED, MOVED = 0x8000, 0x4000


def encode(text):
    return text.encode("cp1252")


def cipher(key, data):
    state, j = list(range(256)), 0
    for i in range(256):
        j = (j + state[i] + key[i % len(key)]) % 256
        state[i], state[j] = state[j], state[i]
    i, j, out = 0, 0, bytearray()
    for byte in data:
        i = (i + 1) % 256
        j = (j + state[i]) % 256
        state[i], state[j] = state[j], state[i]
        out.append(byte ^ state[(state[i] + state[j]) % 256])
    return out


def header():
    page = bytearray(PAGE)
    page[:20] = b"\0\1\0\0Standard Jet DB\0"
    plain = bytearray(126)
    struct.pack_into("<HH", plain, 0x3A - 0x18, 0x409, 1252)
    page[0x18:0x18 + 126] = cipher(bytes([0xC7, 0xDA, 0x39, 0x6B]), plain)
    return page


class Table:
    """Columns are (name, type, size); values of text columns are bytes."""

    def __init__(self, columns):
        self.columns, self.fixed_size, self.variable_count = [], 0, 0
        for number, (name, kind, size) in enumerate(columns):
            fixed = kind in FIXED_SIZES
            size = FIXED_SIZES.get(kind, size)
            self.columns.append((name, kind, number, self.variable_count, fixed, self.fixed_size, size))
            self.fixed_size += size if fixed and kind != TRUTH else 0
            self.variable_count += 0 if fixed else 1

    def row(self, *values):
        data, mask, variable = bytearray(self.fixed_size), bytearray((len(self.columns) + 7) // 8), []
        for (_, kind, number, _, fixed, offset, _), value in zip(self.columns, values):
            if value is not None and value is not False:
                mask[number // 8] |= 1 << number % 8
            if not fixed:
                variable.append(value or b"")
            elif kind != TRUTH and value is not None:
                struct.pack_into(FIXED_FORMATS[kind], data, offset, value)
        row, offsets = bytes([len(self.columns)]) + data, []
        for value in variable:
            offsets.append(len(row))
            row += value
        offsets.append(len(row))
        jumps = 0
        while (len(row) + len(offsets) + jumps + len(mask)) // 256 != jumps:
            jumps += 1
        table = [next((i for i, offset in enumerate(offsets) if offset >= 256 * j), 0xFF) for j in range(1, jumps + 1)]
        row += bytes(offset & 255 for offset in reversed(offsets)) + bytes(reversed(table))
        return row + bytes([self.variable_count]) + mask

    def definition(self, map_page, row_count):
        page = bytearray(PAGE)
        page[:4], page[20] = b"\2\1VC", 0x4E
        struct.pack_into("<I", page, 12, row_count)
        struct.pack_into("<HHH", page, 21, len(self.columns), self.variable_count, len(self.columns))
        struct.pack_into("<II", page, 35, map_page << 8, map_page << 8 | 1)
        position = 43
        for _, kind, number, variable, fixed, offset, size in self.columns:
            page[position], page[position + 13] = kind, 3 if fixed else 2
            struct.pack_into("<HHH", page, position + 1, number, variable, number)
            struct.pack_into("<HH", page, position + 14, offset, size)
            position += 18
        for name, *_ in self.columns:
            text = encode(name)
            page[position:position + 1 + len(text)] = bytes([len(text)]) + text
            position += 1 + len(text)
        struct.pack_into("<I", page, 8, position)
        page[position:position + 2] = b"\xff\xff"
        return page


def data_page(owner, rows):
    page, position = bytearray(PAGE), PAGE
    page[:2], page[4:8] = b"\1\1", owner
    struct.pack_into("<H", page, 8, len(rows))
    for i, row in enumerate(rows):
        row, flag = row if isinstance(row, tuple) else (row, 0)
        position -= len(row)
        page[position:position + len(row)] = row
        struct.pack_into("<H", page, 10 + 2 * i, position | flag)
    return page


def map_page(pages):
    bits = bytearray(21)
    for page in pages:
        bits[5 + page // 8] |= 1 << page % 8
    return data_page(bytes(4), [bytes(bits), bytes(21)])


def memo(text, flag, page=0):
    return struct.pack("<III", len(text) | flag, page << 8, 0) + (text if flag == 0x80000000 else b"")


def main():
    catalog = Table([("Id", INTEGER32, 4), ("ParentId", INTEGER32, 4), ("Name", TEXT, 64), ("Type", INTEGER16, 2),
                     ("Flags", INTEGER32, 4), ("LvProp", OLE, 0)])
    entries = [catalog.row(2, 0, b"MSysObjects", 1, -2147483648, None), catalog.row(5, 0, encode("Nós"), 1, 0, None),
               catalog.row(77, 0, b"Ligada", 6, 0, None), catalog.row(78, 0, b"Consulta", 5, 0, None)]
    nodes = Table([("Número", INTEGER32, 4), ("Nome", TEXT, 255), ("Sim", TRUTH, 1), ("Valor", DOUBLE, 8),
                   ("Nota", MEMO, 0), ("Observação", TEXT, 255), ("Único", SINGLE, 4)])
    name, long = encode("Açude Velho – “grande” €"), encode("ção " * 50)
    single, chain = encode("nota única " * 30), encode("parte ção " * 300)
    first = data_page(struct.pack("<I", 5), [
        nodes.row(1, name, True, 1.5, memo(b"curta", 0x80000000), b"", 0.1),
        (nodes.row(99, b"apagada", False, 0.0, None, None, None), DELETED),
        nodes.row(2, None, False, None, None, None, None),
        nodes.row(3, long, True, -2.25, memo(long, 0x80000000), encode("é" * 255), 1e10),
        (struct.pack("<I", 8 << 8 | 1), MOVED)])
    second = data_page(struct.pack("<I", 5), [
        nodes.row(-4, b"x" * 255, False, 100000.0, memo(single, 0x40000000, 9), b"y" * 255, 16777216.0),
        (nodes.row(6, b"mudou", False, 6.5, None, b"longe", 6.25), DELETED),
        nodes.row(5, b"longa", True, 0.1, memo(chain, 0, 10), b"fim", None)])
    links = [struct.pack("<I", page << 8) + chain[i:i + 1400] for page, i in ((11, 0), (12, 1400), (0, 2800))]
    pages = [header(), bytearray(PAGE), catalog.definition(3, len(entries)), map_page([4]),
             data_page(struct.pack("<I", 2), entries), nodes.definition(6, 6), map_page([7, 8]), first, second,
             data_page(b"LVAL", [single])] + [data_page(b"LVAL", [link]) for link in links]
    with open(sys.argv[1], "wb") as file:
        file.write(b"".join(pages))


main()
