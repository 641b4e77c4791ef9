#!/usr/bin/env python3
"""Makes everything below assets/ and examples/ that is drawn or generated.

    python3 examples/make_media.py

needs Python 3 and the command `ffmpeg` (for JPEG and WMV). The same script gives the same pictures
again; only another version of ffmpeg or zlib may pack them into other bytes.
"""

import math
import pathlib
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True  # leaves no cache folder among the examples

import draw_assets
import draw_media
import make_skins
import scenery
from raster import bmp_bytes, png_bytes

EXAMPLES = pathlib.Path(__file__).resolve().parent
ASSETS = EXAMPLES.parent / "assets"


def ffmpeg(width, height, frames, rate, output, options):
    """Encodes frames of R, G, B bytes."""
    with tempfile.TemporaryDirectory() as folder:
        target = pathlib.Path(folder, "media")
        source = ["-f", "rawvideo", "-pix_fmt", "rgb24", "-s", f"{width}x{height}", "-r", str(rate), "-i", "-"]
        plain = ["-map_metadata", "-1", "-fflags", "+bitexact", "-flags", "+bitexact", "-threads", "1"]
        command = ["ffmpeg", "-v", "error", "-nostdin", *source, *options, *plain, str(target)]
        subprocess.run(command, input=b"".join(frames), check=True)
        save(output, target.read_bytes())


def save(path, data):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)
    print(f"{len(data):8} {path.relative_to(EXAMPLES.parent)}")


def save_png(path, canvas, alpha=True):
    data = canvas.rgba_bytes() if alpha else canvas.rgb_bytes()
    save(path, png_bytes(canvas.width, canvas.height, data))


def save_bmp(path, canvas):
    save(path, bmp_bytes(canvas.width, canvas.height, canvas.rgb_bytes()))


def save_jpeg(path, width, height, rgb, quality=3):
    options = ["-frames:v", "1", "-pix_fmt", "yuvj444p", "-q:v", str(quality), "-f", "mjpeg"]
    ffmpeg(width, height, [rgb], 1, path, options)


def save_wmv(path, scene, seconds, rate=15):
    """A loop of a scene, without sound."""
    count = seconds * rate
    frames = [scene.frame(math.tau * i / count) for i in range(count)]
    options = ["-c:v", "wmv2", "-q:v", "4", "-g", str(rate), "-f", "asf"]
    ffmpeg(scene.width, scene.height, frames, rate, path, options)


def assets():
    save_png(ASSETS / "imgCustom.png", draw_assets.program_picture())
    save_png(ASSETS / "gamelist.png", draw_assets.game_list())
    save_png(ASSETS / "gamepictures.png", draw_assets.game_pictures())
    icon, small = draw_assets.app_icon(), draw_assets.small_app_icon()
    save(ASSETS / "tarvel.svg", icon.svg("Tarvel").encode())
    for size in (16, 32, 48, 64, 128, 256):
        save_png(ASSETS / f"tarvel-{size}.png", (small if size <= 32 else icon).render(size))


def aurora():
    media = EXAMPLES / "aurora" / "Media"
    save_jpeg(media / "aurora.jpg", 640, 480, scenery.aurora(640, 480).frame(), 2)
    save_jpeg(media / "violet.jpg", 200, 150, scenery.violet_night(200, 150).frame())
    save_wmv(media / "lights.wmv", scenery.aurora(160, 120), 4)
    save_bmp(media / "record.bmp", draw_media.record())
    pictures = {
        "logo": draw_media.aurora_logo(),
        "title": draw_media.aurora_title(),
        "shine": draw_media.shine(),
        "up": draw_media.arrow(up=True),
        "down": draw_media.arrow(up=False),
        "lock": draw_media.lock(),
        "clock": draw_media.clock(),
        "disk": draw_media.disk(),
        "chip": draw_media.chip(),
        "network": draw_media.network(),
    }
    for name, canvas in pictures.items():
        save_png(media / f"{name}.png", canvas)


def handmade():
    """File names in letter cases that differ from those in the skin's text."""
    media = EXAMPLES / "handmade" / "media"
    save_jpeg(media / "Dunes.JPEG", 640, 480, scenery.dunes(640, 480), 2)
    save_wmv(media / "EMBERS.WMV", scenery.Sparks(160, 120, 45, 4), 3)
    save_png(media / "LOGO.PNG", draw_media.ember_logo())
    save_png(media / "flame.png", draw_media.ember_flame())
    save_png(media / "icons" / "Star.png", draw_media.star())
    save_bmp(media / "STONES.bmp", draw_media.stones())


if __name__ == "__main__":
    assets()
    aurora()
    handmade()
    save(EXAMPLES / "aurora" / "QOR_Skin.xml", make_skins.aurora())
    save(EXAMPLES / "handmade" / "QOR_Skin.xml", make_skins.handmade())
