"""Writes palettes as other programs do into the folder given, whole ones and broken ones.

The file "expected" then has a line for each: its name, and its colours as red, green, blue, alpha in hexadecimal
digits, or nothing where it has to be refused. Pictures are written, and read for it, by ImageMagick.
"""
import os
import random
import struct
import subprocess
import sys

folder = sys.argv[1]
random.seed(7)
expected = []


def store(name, content, colors):
    with open(os.path.join(folder, name), "wb") as file:
        file.write(content if isinstance(content, bytes) else content.encode())
    expected.append(name + "\t" + "".join(f" {r:02x}{g:02x}{b:02x}{a:02x}" for r, g, b, a in colors))


def gpl(colors, end):
    names = ["", "\tUntitled", " deep  sea", "\tÜber 7", "\t#7"]
    lines = ["GIMP Palette", "Name: Tönung 3", "Columns: 16", "#", "# 1 2 3 is no entry"]
    lines += [f"{r:3d} {g:3d} {b:3d}{names[i % 5]}" for i, (r, g, b, _) in enumerate(colors)]
    return end.join(lines) + end


def jasc(colors, end):
    return end.join(["JASC-PAL", "0100", str(len(colors))] + [f"{r} {g} {b}" for r, g, b, _ in colors]) + end


def riff(colors, before=b""):
    entries = b"".join(struct.pack("BBBB", r, g, b, i % 5) for i, (r, g, b, _) in enumerate(colors))
    data = b"data" + struct.pack("<IHH", 4 + len(entries), 0x300, len(colors)) + entries
    return b"RIFF" + struct.pack("<I", 4 + len(before + data)) + b"PAL " + before + data


def act(colors, has_count):
    table = b"".join(struct.pack("BBB", r, g, b) for r, g, b, _ in colors).ljust(768, b"\0")
    return table + (struct.pack(">HH", len(colors), 0xFFFF) if has_count else b"")


def hexadecimal(colors, start, end):
    return end.join(f"{start}{r:02x}{g:02X}{b:02x}" for r, g, b, _ in colors)


def argb(colors, end):
    lines = ["; Palette file", ";Palette Name: Dusk", f";Colors: {len(colors)}"]
    return end.join(lines + [f"{a:02X}{r:02X}{g:02X}{b:02X}" for r, g, b, a in colors]) + end


for count in (1, 2, 16, 255, 256, 300):
    opaque = [(*(random.randrange(256) for _ in range(3)), 255) for _ in range(count)]
    clear = [(r, g, b, random.randrange(256)) for r, g, b, _ in opaque]
    taken = opaque[:256]
    for kind, end in (("unix", "\n"), ("dos", "\r\n")):
        store(f"{count} {kind}.gpl", gpl(opaque, end), taken)
        store(f"{count} {kind}.pal", jasc(opaque, end), taken)
        store(f"{count} {kind}.hex", hexadecimal(opaque, "", end), taken)
        store(f"{count} {kind} signs.txt", hexadecimal(opaque, "#", end), taken)
        store(f"{count} {kind}.txt", argb(clear, end), clear[:256])
    store(f"{count} riff.pal", riff(opaque), taken)
    store(f"{count} riff with more.pal", riff(opaque, b"offl" + struct.pack("<I", 3) + b"abc\0"), taken)
    if count <= 256:
        store(f"{count} counted.act", act(opaque, True), taken)
        store(f"{count}.act", act(opaque, False), opaque + [(0, 0, 0, 255)] * (256 - count))
    # Cut in the last colour, or said to be more.
    store(f"{count} cut.gpl", gpl(opaque, "\n") + "1 2", [])
    store(f"{count} cut.pal", jasc(opaque, "\n").rsplit(" ", 1)[0], [])
    store(f"{count} cut riff.pal", riff(opaque)[:-1], [])
    store(f"{count} cut.act", act(opaque[:256], False)[:-1], [])
    store(f"{count} cut.hex", hexadecimal(opaque, "", "\n")[:-1], [])
    store(f"{count} more.pal", jasc(opaque, "\n").replace(f"\n{count}\n", f"\n{count + 1}\n", 1), [])

for name in ("png8", "png24", "png32", "bmp3", "bmp"):
    path = os.path.join(folder, name + (".png" if "png" in name else ".bmp"))
    subprocess.run(["convert", "rose:", "-colors", "24", "-unique-colors", f"{name}:{path}"], check=True)
    rgba = subprocess.run(["convert", path, "-depth", "8", "rgba:-"], check=True, capture_output=True).stdout
    expected.append(os.path.basename(path) + "\t" + "".join(f" {rgba[i:i + 4].hex()}" for i in range(0, len(rgba), 4)))
    with open(path, "rb") as whole, open(path + ".cut", "wb") as cut:
        content = whole.read()
        cut.write(content[: len(content) // 2])
    expected.append(os.path.basename(path) + ".cut\t")

with open(os.path.join(folder, "expected"), "w", encoding="utf-8") as file:
    file.write("\n".join(expected) + "\n")
