"""The sockets of a board in plain Python.

Of the board in these files (board_sockets, board_document, board_conflicts, board_simulation) no
line is shared with the program. It is written to be read beside it, so that the two can be held
against each other: what both say is hardly a slip of one of them.
"""
INPUT, OUTPUT, CONTACT, CONTROL = 1, 2, 3, 0

# name, x, y, whether a wire may end there, kind; the order is the board's own.
SOCKETS = (
    ("Sensor 1", 44, 49, False, OUTPUT),
    ("Sensor 2", 44, 102, False, OUTPUT),
    ("Geluids Sensor", 31, 145, False, OUTPUT),
    ("Sensor 1 Uit Geel", 98, 50, True, OUTPUT),
    ("Sensor 2 Uit Geel", 98, 101, True, OUTPUT),
    ("Geluids Sensor Uit Geel", 98, 144, True, OUTPUT),
    ("Drukknop 1 Uit Geel", 98, 179, True, OUTPUT),
    ("Drukknop 2 Uit Geel", 98, 214, True, OUTPUT),
    ("Var. Spanning Uit Geel", 98, 256, True, OUTPUT),
    ("Puls Generator Uit Geel", 98, 295, True, OUTPUT),
    ("Transistor In", 133, 41, True, INPUT),
    ("EN-poort Ingang 1", 133, 110, True, INPUT),
    ("EN-poort Ingang 2", 133, 145, True, INPUT),
    ("Geheugen Set (In)", 134, 180, True, INPUT),
    ("Geheugen Reset (In)", 134, 215, True, INPUT),
    ("Transistor Uit", 199, 41, True, OUTPUT),
    ("EN-poort Uit", 199, 128, True, OUTPUT),
    ("Geheugen Uit", 200, 198, True, OUTPUT),
    ("Comparator In", 222, 42, True, INPUT),
    ("Comparator Uit", 287, 41, True, OUTPUT),
    ("OF-poort Ingang 1", 222, 111, True, INPUT),
    ("OF-poort Ingang 2", 222, 145, True, INPUT),
    ("OF-poort Uit", 287, 128, True, OUTPUT),
    ("Invertor Ingang", 222, 197, True, INPUT),
    ("Invertor Uitgang", 288, 197, True, OUTPUT),
    ("LED 1 Ingang", 322, 41, True, INPUT),
    ("LED 2 Ingang", 322, 75, True, INPUT),
    ("LED 3 Ingang", 323, 110, True, INPUT),
    ("LED 4 Ingang", 323, 145, True, INPUT),
    ("Zoemer", 323, 197, True, INPUT),
    ("Relais Controle (In)", 323, 245, True, INPUT),
    ("Relais Ingang 1 (in/uit)", 368, 246, True, CONTACT),
    ("Relais Ingang 2 (in/uit)", 393, 245, True, CONTACT),
    ("Relais Uitgang 1 (in/uit)", 369, 285, True, CONTACT),
    ("Relais Uitgang 2 (in/uit)", 394, 285, True, CONTACT),
    ("Pulsenteller Uitgang 1", 288, 250, True, OUTPUT),
    ("Pulsenteller Uitgang 2", 266, 249, True, OUTPUT),
    ("Pulsenteller Uitgang 4", 244, 249, True, OUTPUT),
    ("Pulsenteller Uitgang 8", 222, 250, True, OUTPUT),
    ("Pulsenteller Tel pulsen (In)", 133, 249, True, INPUT),
    ("Pulsenteller Teller aan/uit (In)", 133, 281, True, INPUT),
    ("Pulsenteller Reset (In)", 134, 305, True, INPUT),
    ("AD-omzetter In", 30, 336, True, INPUT),
    ("AD-omzetter Uitgang 8", 51, 335, True, OUTPUT),
    ("AD-omzetter Uitgang 4", 70, 335, True, OUTPUT),
    ("AD-omzetter Uitgang 2", 87, 335, True, OUTPUT),
    ("AD-omzetter Uitgang 1", 104, 335, True, OUTPUT),
    ("Drukknop 1", 30, 180, False, CONTROL),
    ("Drukknop 2", 29, 214, False, CONTROL),
    ("Var. Spanning In Zwart", 31, 256, True, CONTROL),
    ("Var. Spanning Regelaar", 63, 256, False, CONTROL),
    ("Puls Generator Regelaar", 64, 296, False, CONTROL),
    ("Pulsenteller Reset Drukknop", 200, 305, False, CONTROL),
    ("Comparator Regelaar", 266, 72, False, CONTROL),
)
CONNECTABLE = tuple(socket[0] for socket in SOCKETS if socket[3])
KIND = {socket[0]: socket[4] for socket in SOCKETS}
PLACE = {socket[0]: (socket[1], socket[2]) for socket in SOCKETS}
