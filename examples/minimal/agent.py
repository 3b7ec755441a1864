"""Follows Lumikey's lighting: prints a line for each change."""
import socket
import struct
import time

ZONES = ("left", "centre", "right", "stripe")
OFF, WAKE = 0xE0003000, 0xE007F007


def fetch():
    """The five words of one answer."""
    with socket.create_connection(("127.0.0.9", 52316), timeout=2) as server:
        data = b""
        while part := server.recv(4096):  # until the server closes
            data += part
    if len(data) < 6 or struct.unpack(">HI", data[:6]) != (len(data) - 2, len(data) - 6):
        raise ValueError("broken answer")
    left, centre, right, stripe, effect = map(int, data[6:].decode("utf-16-be").split(","))
    return [left, centre, right, stripe], effect


def describe(words, effect):
    """What a real agent gives to the keyboard instead."""
    if words == [WAKE] * 4:
        return "wake"
    parts = ["off"] if words == [OFF] * 4 else []
    for zone, word in enumerate(words):
        if word >> 24 == 0xF0 + zone:  # any other word is no colour: leave the zone as it is
            blue, red, green = word >> 16 & 255, word >> 8 & 255, word & 255
            parts.append(f"{ZONES[zone]} #{red:02x}{green:02x}{blue:02x}")
    return ", ".join([*parts, f"effect 0x{effect:08x}"])


last = None
while True:
    try:
        now = describe(*fetch())
    except (OSError, ValueError):  # not there, busy or broken: try again
        now = None
    if now and now != last:
        print(now, flush=True)
    last = now
    time.sleep(0.1 if now else 1)
