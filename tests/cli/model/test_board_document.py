"""Holds the documents of the board in Python to cases worked out by hand: what compare.py
measures the program with has to be right by itself.
"""
import struct
import unittest

import board_document
from board_document import Board, DocumentError


class Documents(unittest.TestCase):
    def test_empty_board(self):
        data = Board().write()
        self.assertEqual(data, bytes.fromhex("dada 2e000000 0010 22000000") + bytes(34)
                         + bytes.fromhex("0020 00000000"))
        self.assertEqual(board_document.read(data), Board())

    def test_a_wire_takes_its_names(self):
        data = Board(wires=[("Sensor 1 Uit Geel", "LED 1 Ingang")]).write()
        self.assertEqual(len(data), 52 + 31)
        self.assertEqual(struct.unpack_from("<i", data, 2)[0], 46 + 31)
        self.assertTrue(data.endswith(b"\x1f\0\0\0Sensor 1 Uit Geel\0LED 1 Ingang\0"))

    def test_order_of_the_settings(self):
        data = Board(counter=4, sensors=[5, 6], pulse=7, comparator=8, voltage=-9,
                     buttons=[False, True]).write()
        self.assertEqual(struct.unpack_from("<8i2B", data, 12),
                         (0, 0, 4, 5, 6, 7, 8, -9, 0, 255))
        self.assertEqual(board_document.read(data).write(), data)

    def test_only_one_byte_means_pressed(self):
        data = bytearray(Board().write())
        for byte, pressed in ((0x00, False), (0x01, False), (0xFE, False), (0xFF, True)):
            data[44] = byte
            self.assertEqual(board_document.read(data).buttons, [pressed, False])

    def test_every_byte_has_a_character(self):
        every = bytes(range(1, 256))
        self.assertEqual(board_document.bytes_of(board_document.text_of(every)), every)
        self.assertEqual(board_document.text_of(b"\x80\x81\xe9"), "\u20ac\x81\u00e9")

    def test_tail_of_an_earlier_document(self):
        data = Board(wires=[("a", "b")]).write()
        self.assertEqual(board_document.read(data + b"tail").write(), data)

    def test_broken(self):
        data = Board(wires=[("a", "b")], counter=9).write()
        for end in range(len(data)):
            with self.subTest(end=end), self.assertRaises(DocumentError):
                board_document.read(data[:end])
        for place, byte in ((0, 0), (6, 1), (46, 1), (20, 10), (16, 2), (19, 255)):
            broken = bytearray(data)
            broken[place] = byte
            with self.subTest(place=place), self.assertRaises(DocumentError):
                board_document.read(broken)


if __name__ == "__main__":
    unittest.main()
