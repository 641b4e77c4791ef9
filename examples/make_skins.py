"""The texts of the example skins: `aurora()` as Tarvel writes a skin, `handmade()` as a person types one."""

KINDS = ("Delay", "CycleOn", "CycleOff", "Lifetime")


def alpha(opacity):
    """Opacity in percent as two digits; halves go to the even neighbour."""
    whole, rest = divmod(opacity * 255, 100)
    whole += rest > 50 or (rest == 50 and whole % 2)
    return f"{whole:02X}"


class SkinText:
    """Builds a skin file line by line: a TAB a level, CR LF after each line, nothing escaped."""

    def __init__(self):
        self.lines, self.depth = [], 0

    def line(self, text):
        if text.startswith("</"):
            self.depth -= 1
        self.lines.append("\t" * self.depth + text)
        if "/>" not in text and "</" not in text and "<" in text:
            self.depth += 1

    def tag(self, name, value):
        self.line(f"<{name}>{value}</{name}>")

    def group(self, name, *values):
        """A tag around others, given as (name, value)."""
        self.line(f"<{name}>")
        for value in values:
            self.tag(*value)
        self.line(f"</{name.split()[0]}>")

    def resource(self, name, *content):
        self.group(f'Resource Type="Image" Name="{name}"', *content)

    def background(self):
        """The first element of the Menu screen where a background is loaded."""
        self.line('<LayoutElement Type="Image" Source="bground">')
        self.line('<Pos L="0"  T="0" W="640"  H="480"/>')
        self.line("</LayoutElement>")

    def box(self, left, top, width, height, fill=None, border=None, opacity=100, **tail):
        self.line('<LayoutElement Type="Box">')
        if fill:
            self.tag("Color", f"0x{alpha(opacity)}{fill}")
        if border:
            self.tag("BorderColor", f"0xFF{border}")
        self._end((left, top, width, height), **tail)

    def image(self, source, left, top, width, height, **tail):
        self.line(f'<LayoutElement Type="Image" Source="{source}">')
        self.line('<Scaling X="True" Y="True"/>')
        self._end((left, top, width, height), **tail)

    def text(self, constant, left, top, width, height, color, opacity=100, source=False, **tail):
        """Fixed text, or with source=True the name of a text that the dashboard supplies."""
        if source:
            self.line(f'<LayoutElement Type="Text" Source="{constant}">')
        else:
            self.line('<LayoutElement Type="Text">')
            self.tag("Constant", constant)
        self.tag("TextColor", f"0x{alpha(opacity)}{color}")
        self._end((left, top, width, height), **tail)

    def across(self, x1, y1, x2, y2, color, **tail):
        """A line."""
        self.line('<LayoutElement Type="Line">')
        self.line(f'<Pos X1="{x1}" Y1="{y1}" X2="{x2}" Y2="{y2}"/>')
        self.tag("Color", f"0xFF{color}")
        self._end(None, **tail)

    def menu(self, left, top, width, height, items, colors, about="Right", description=True, **tail):
        """Colours: selected title and description, other titles and descriptions; about: where these stand."""
        self.line('<LayoutElement Type="Menu" Source="QOR">')
        self.line('<Thumbnails Align="Left">True</Thumbnails>')
        self.group('Primary Source="Title"', ("OffsetY", 0), ("JustifyX", "Left"))
        self.group('Secondary Source="Descr"', ("OffsetY", 0), ("JustifyX", about))
        for name, first, (title, descr) in (
            ("Selection", [("DoGlow", True)], colors[:2]),
            ("UnSelItem", [], colors[2:]),
        ):
            self.line(f"<{name}>")
            for value in [*first, ("TextColor", f"0xFF{title}")]:
                self.tag(*value)
            self.group("Secondary", ("TextColor", f"0xFF{descr}"))
            self.line(f"</{name}>")
        for value in (("NumItems", items), ("SelPos", 0), ("ScrollFactor", 3)):
            self.tag(*value)
        self.tag("SmoothScroll", True)
        self.tag("DrawSecondary", description)
        self._end((left, top, width, height), **tail)

    def _end(self, place, condition=None, timers=(), modifier=None):
        if place:
            self.line('<Pos L="{}" T="{}" W="{}" H="{}"/>'.format(*place))
        if condition:
            self.tag("Condition", condition)
        for kind, value in zip(KINDS, timers):
            if value:
                self.line(f'<Timer Type="{kind}">{value}</Timer>')
        if modifier:
            self._modifier(*modifier)
        self.line("</LayoutElement>")

    def _modifier(self, kind, target, *parameters):
        """A block with its empty lines; parameters are (tag, attributes)."""
        start = f'<Modifier Type="{kind}"' + (f' Target="{target}">' if target else ">")
        if parameters:
            self.line(start)
            for name, attributes in parameters:
                self.line(f"<{name} {attributes}></{name}>")
            self.line("")
            self.line("</Modifier>")
        else:
            self.line(start + "</Modifier>")
        self.line("")

    def file_bytes(self):
        return ("\r\n".join(self.lines) + "\r\n\r\n").encode("windows-1252")


def reach(x, y):
    return "Range", f'X="{x}" Y="{y}"'


def bounds(left, top, right, bottom):
    return "Bounds", f'L="{left}" T="{top}" R="{right}" B="{bottom}"'


def channels(*values):
    """The four colour channels of a modifier, each (enable, min, max, period)."""
    for name, (enable, low, high, period) in zip(("Alpha", "Red", "Green", "Blue"), values):
        yield name, f'Enable="{enable}" Min="{low}" Max="{high}" Period="{period}"'


PANEL, EDGE, RULE = "061428", "2F7596", "2F7F9A"
BRIGHT, MILD, TEAL, GOLD = "E6F4FF", "9CC3D8", "7FF0D0", "FFD27A"
ITEMS = ("FFFFFF", "CFFFF4", "C5D8E8", "7F9DB5")


def aurora():
    """A dark blue skin under northern lights; uses what the editor can write."""
    skin = SkinText()
    skin.line('<Skin name="Aurora">')
    _aurora_settings(skin)
    _aurora_resources(skin)
    for name, fill in (
        ("Title", _aurora_title),
        ("Menu", _aurora_menu),
        ("Load", _aurora_load),
        ("Saver", _aurora_saver),
        ("JukeBox", _aurora_jukebox),
        ("FileManager", _aurora_files),
    ):
        skin.line(f'<Layout Screen="{name}">')
        fill(skin)
        skin.line("</Layout>")
    skin.line("</Skin>")
    return skin.file_bytes()


def _aurora_settings(skin):
    skin.group(
        "Information",
        ("Author", "The Tarvel project"),
        ("Version", "1.0"),
        ("Copyright", "MIT licence"),
        ("About", "Lumière du Nord & a quiet lake"),
        ("MadeUsing", "Tarvel 5.0"),
    )
    skin.group("Music", ("PlayGlobal", "On"), ("PlayRandom", "Off"))
    skin.group("Delays", ("Title", 3000), ("Load", 1500), ("Saver", 20000))
    skin.group(
        "MessageBox",
        ("BoxColor", "0xFF0A2340"),
        ("BorderColor", "0xFF2F7596"),
        ("TextColor", "0xFFE6F4FF"),
        ("ShadowColor", "0xFF030817"),
    )
    skin.group(
        "SystemMenu",
        ("BoxColor", "0xFF061428"),
        ("BorderColor", "0xFF2F7596"),
        ("TextColor", "0xFFC5D8E8"),
        ("SelectColor", "0xFF7FF0D0"),
        ("ValueColor", "0xFF9CC3D8"),
        ("SelectValueColor", "0xFFFFD27A"),
    )


def _aurora_resources(skin):
    files = {
        "bground": "aurora.jpg",
        "Logo": "logo.png",
        "BigTitle": "title.png",
        "Shine": "shine.png",
        "Lights": "lights.wmv",
        "Violet": "violet.jpg",
        "Record": "record.bmp",
        "Up": "up.png",
        "Down": "down.png",
        "Lock": "lock.png",
        "Clock": "clock.png",
        "Disk": "disk.png",
        "Chip": "chip.png",
        "Network": "network.png",
    }
    for name, file in files.items():
        skin.resource(name, ("File", f"Media\\{file}"))
    skin.resource("GameIcon", ("Entry", "default.xbe"))
    skin.resource("PreviewMedia", ("EntryNamed", "Media"))
    skin.resource("SkyTile", ("File", "::SkyTile"))


def _panel(skin, left, top, width, height, heading):
    """A translucent box with a bright head and its title."""
    skin.box(left, top, width, height, PANEL, EDGE, 68)
    skin.image("Shine", left + 1, top + 1, min(422, width - 2), 26)
    skin.text(heading, left + 12, top + 7, width - 60, 14, TEAL)
    skin.across(left + 1, top + 27, left + width - 2, top + 27, RULE)


def _aurora_title(skin):
    skin.image("bground", 0, 0, 640, 480)
    skin.image("BigTitle", 110, 62, 420, 130, modifier=("Fade", "Picture", reach(40, 100)))
    skin.across(170, 200, 470, 200, RULE)
    night = channels((False, 0, 255, 1000), (False, 0, 255, 1000), (True, 20, 70, 4000), (True, 40, 110, 6000))
    skin.box(170, 212, 300, 184, PANEL, EDGE, 55, modifier=("Tint", None, *night))
    skin.menu(180, 220, 280, 168, 3, ITEMS, about="Left", timers=(800,))
    skin.box(254, 420, 132, 26, "0E3A55", TEAL, 75, timers=(1500, 900, 450))
    skin.text("Press START to begin", 267, 426, 116, 14, BRIGHT, timers=(1500, 900, 450))
    skin.text("QORVersion", 560, 448, 70, 14, MILD, 80, source=True)


def _aurora_menu(skin):
    skin.background()
    skin.box(28, 24, 584, 56, PANEL, EDGE, 68)
    glow = channels((True, 140, 255, 2400), (True, 120, 255, 2400), (True, 200, 255, 1800), (False, 0, 255, 1000))
    skin.image("Logo", 40, 30, 236, 44, modifier=("Glow", "Picture", *glow))
    skin.text("CurrentSubMenu", 300, 45, 150, 14, MILD, source=True)
    skin.across(468, 34, 468, 70, RULE)
    skin.image("Clock", 482, 44, 16, 16)
    skin.text("Time", 508, 37, 92, 14, BRIGHT, source=True)
    skin.text("Date", 508, 54, 92, 14, MILD, source=True)

    _panel(skin, 28, 92, 424, 308, "GAMES & APPLICATIONS")
    skin.image("Up", 396, 100, 18, 12, condition="ItemPrev")
    skin.image("Down", 424, 100, 18, 12, condition="ItemNext ")
    skin.menu(40, 126, 400, 240, 5, ITEMS, about="Left")
    skin.across(40, 372, 440, 372, RULE)
    skin.image("Lock", 40, 376, 20, 20, condition="ItemPassCode")
    skin.text("Passcode needed", 66, 379, 120, 14, GOLD, condition="ItemPassCode")
    skin.text("Opens a folder", 206, 379, 100, 14, MILD, condition="ItemSubMenu")
    skin.text("Press A to start", 346, 379, 96, 14, TEAL, condition="ItemEntry", timers=(0, 1200, 400))

    _panel(skin, 464, 92, 148, 308, "PREVIEW")
    skin.image("Lights", 474, 129, 128, 96)
    skin.box(473, 128, 130, 98, border=TEAL)
    skin.text("CGTitle", 476, 236, 124, 14, BRIGHT, source=True)
    skin.text("CGDescr", 476, 254, 124, 28, MILD, source=True)
    skin.across(476, 290, 600, 290, RULE)
    skin.image("GameIcon", 474, 298, 44, 44)
    skin.text("Disc tray", 528, 304, 76, 14, TEAL)
    skin.text("TrayState", 528, 321, 76, 14, MILD, source=True)
    skin.across(476, 350, 600, 350, RULE)
    skin.text("CurrentSong", 476, 357, 124, 14, BRIGHT, source=True)
    skin.box(476, 378, 124, 8, "0E3550", EDGE, 80)
    skin.box(477, 379, 52, 6, TEAL, opacity=85, modifier=("Slide", "Position", bounds(477, 379, 599, 385)))

    skin.box(28, 412, 584, 40, PANEL, EDGE, 68)
    for left, icon, source in ((42, "Disk", "DriveEFree"), (166, "Chip", "TempCPU"), (282, "Network", "IP")):
        skin.image(icon, left, 424, 16, 16)
        skin.text(source, left + 24, 425, 84, 14, BRIGHT, source=True)
    skin.across(404, 420, 404, 444, RULE)
    skin.text("Lumière du Nord & étoiles", 424, 425, 176, 14, MILD, modifier=("Wobble", None))


def _aurora_load(skin):
    skin.image("bground", 0, 0, 640, 480)
    _panel(skin, 120, 140, 400, 190, "LOADING")
    skin.image("PreviewMedia", 140, 184, 96, 96, timers=(200,))
    skin.text("CGTitle", 256, 188, 244, 14, BRIGHT, source=True)
    skin.text("CGDescr", 256, 208, 244, 42, MILD, source=True)
    skin.text("Time", 466, 147, 44, 14, MILD, source=True)
    skin.box(256, 262, 244, 12, "0E3550", EDGE, 80)
    skin.box(257, 263, 160, 10, TEAL, opacity=90, modifier=("Slide", "Position", bounds(257, 263, 499, 273)))
    skin.across(140, 296, 500, 296, RULE)
    skin.text("Please wait — the disc is being read …", 140, 305, 300, 14, MILD, timers=(1000, 800, 400))


def _aurora_saver(skin):
    skin.box(0, 0, 640, 480, "02060F")
    skin.image("Lights", 160, 90, 320, 240, modifier=("Wander", "Position", bounds(32, 24, 608, 456)))
    skin.box(159, 89, 322, 242, border=RULE, modifier=("Slide", "Position", bounds(31, 23, 609, 457)))
    skin.across(160, 346, 480, 346, RULE)
    skin.text("Time", 160, 354, 100, 14, BRIGHT, source=True)
    skin.text("Date", 380, 354, 100, 14, MILD, source=True)
    skin.text("Good night", 292, 354, 70, 14, TEAL, 70, timers=(4000, 3000, 2000, 60000))


def _aurora_jukebox(skin):
    """Everything that plays is on this screen."""
    skin.image("bground", 0, 0, 640, 480)
    skin.box(28, 24, 584, 44, PANEL, EDGE, 68)
    shine = channels((True, 130, 255, 1600), (True, 60, 255, 2400), (False, 0, 255, 1000), (False, 0, 255, 1000))
    skin.text("J U K E B O X", 44, 39, 96, 14, TEAL, modifier=("Glow", "Letters", *shine))
    skin.text("CurrentSoundtrack", 160, 39, 150, 14, MILD, source=True)
    skin.across(446, 32, 446, 60, RULE)
    skin.image("Clock", 460, 38, 16, 16)
    skin.text("DateTime", 486, 39, 120, 14, BRIGHT, source=True)
    _jukebox_record(skin)
    _jukebox_list(skin)

    skin.box(28, 408, 584, 40, PANEL, EDGE, 68)
    skin.image("Lock", 42, 418, 20, 20, condition="ItemPassCode")
    skin.text("Passcode needed", 68, 421, 110, 14, GOLD, condition="ItemPassCode")
    skin.text("Open to all", 196, 421, 80, 14, MILD, condition="ItemNoPassCode")
    skin.text("Opens a folder", 288, 421, 96, 14, MILD, condition="ItemSubMenu")
    skin.text("Press A to play", 396, 421, 96, 14, TEAL, condition="ItemEntry", timers=(0, 1200, 400))
    skin.across(510, 416, 510, 440, RULE)
    skin.image("Chip", 524, 420, 16, 16)
    skin.text("TempCPU", 548, 421, 60, 14, BRIGHT, source=True)


def _jukebox_record(skin):
    """Timers of every sort, and modifiers of each."""
    _panel(skin, 28, 80, 284, 316, "NOW PLAYING")
    skin.box(286, 89, 10, 10, TEAL, opacity=90, timers=(1500, 600, 400))
    skin.image("Record", 44, 120, 96, 96, modifier=("Wobble", None))
    rim = channels((False, 0, 255, 1000), (False, 0, 255, 1000), (True, 110, 240, 2400), (True, 110, 255, 1700))
    skin.box(43, 119, 98, 98, border=TEAL, modifier=("Tint", "Border", *rim))
    skin.text("CurrentSong", 156, 120, 140, 14, BRIGHT, source=True)
    skin.text("Needle down …", 156, 140, 140, 14, MILD, timers=(0, 0, 0, 1500))
    skin.text("Playing", 156, 160, 140, 14, TEAL, timers=(1500,))
    skin.text("Side A", 156, 180, 140, 14, GOLD, modifier=("Fade", "Letters", reach(35, 100)))
    skin.text("Turn the record over", 156, 200, 140, 14, GOLD, timers=(9000, 800, 400, 12000))
    skin.across(44, 230, 296, 230, RULE)
    bars = (22, 38, 30, 62, 84, 70, 52, 90, 78, 60, 42, 68, 50, 34, 22, 14)
    for i, height in enumerate(bars):
        color = ("5A7BFF", "3FA0E8", "2FC5D8", "7CFFB8")[i // 4]
        pulse = ("Pulse", "Height", reach(*((45, 100), (100, 60), (75, 100), (100, 40))[i % 4]))
        skin.box(45 + i * 16, 282 - height // 2, 10, height, color, opacity=75, timers=(i * 250,), modifier=pulse)
    skin.across(44, 334, 296, 334, RULE)
    skin.box(44, 346, 252, 8, "0E3550", EDGE, 80)
    skin.box(45, 347, 40, 6, TEAL, opacity=85, modifier=("Slide", "Position", bounds(45, 347, 295, 353)))
    skin.text("Time", 44, 368, 60, 14, BRIGHT, source=True)
    skin.text("Date", 236, 368, 60, 14, MILD, source=True)


def _jukebox_list(skin):
    """A list with glow and smooth scrolling, what goes with it, and a video."""
    _panel(skin, 324, 80, 288, 316, "SOUNDTRACKS")
    skin.image("Up", 556, 88, 18, 12, condition="ItemPrev")
    skin.image("Down", 584, 88, 18, 12, condition="ItemNext ")
    skin.menu(334, 112, 268, 160, 5, ITEMS, description=False)
    skin.across(336, 280, 600, 280, RULE)
    skin.image("Lights", 336, 291, 124, 93)
    skin.box(335, 290, 126, 95, border=TEAL)
    skin.text("CGTitle", 474, 293, 128, 14, BRIGHT, source=True)
    skin.text("CGDescr", 474, 311, 128, 14, MILD, source=True)
    line = channels((False, 0, 255, 1000), (True, 20, 127, 3000), (True, 80, 240, 3000), (False, 0, 255, 1000))
    skin.across(474, 334, 600, 334, RULE, modifier=("Tint", None, *line))
    skin.image("Violet", 474, 342, 126, 44, modifier=("Fade", "Picture", reach(30, 100)))


def _aurora_files(skin):
    skin.image("bground", 0, 0, 640, 480)
    skin.box(28, 40, 584, 32, PANEL, EDGE, 75)
    skin.image("Disk", 40, 48, 16, 16)
    skin.text("ActualPath", 66, 49, 400, 14, BRIGHT, source=True)
    _panel(skin, 28, 84, 424, 316, "FILES & FOLDERS")
    skin.menu(40, 122, 400, 240, 5, ITEMS)
    skin.across(40, 370, 440, 370, RULE)
    skin.text("A  open     B  back     Y  options", 40, 378, 300, 14, MILD)
    _panel(skin, 464, 84, 148, 316, "DRIVES")
    for row, (letter, free, size) in enumerate(
        (("C", "DriveCFree", "DriveCSize"), ("E", "DriveEFree", "DriveESize"), ("F", "DriveFFree", "DriveFSize"))
    ):
        top = 124 + row * 66
        skin.image("Disk", 476, top, 16, 16)
        skin.text(f"Drive {letter}", 500, top + 1, 100, 14, TEAL)
        skin.text(free, 500, top + 18, 100, 14, BRIGHT, source=True)
        skin.text(size, 500, top + 35, 100, 14, MILD, source=True)
        skin.across(476, top + 56, 600, top + 56, RULE)
    skin.image("::SkyTile", 506, 326, 64, 64, condition="ItemNoPassCode")


def handmade():
    """A skin in warm colours, typed by hand with all the freedom that takes."""
    return HANDMADE.lstrip("\n").encode("windows-1252")


HANDMADE = r"""
<!-- Ember: a skin typed by hand. The screens come first, their pictures further down. -->
<SKIN NAME="Ember">

  <LAYOUT screen="MENU">
    <!-- the dunes fill the screen -->
    <layoutelement type="IMAGE" source="DUNES">
      <Pos x="0" y="0" w="640" h="480"/>
    </layoutelement>

    <!-- head -->
    <LayoutElement Type="box">
      <color>0xB02C1020</color>
      <bordercolor>0xFFE79A3C</bordercolor>
      <pos X="28" Y="24" W="584" H="64"/>
    </LayoutElement>
    <LayoutElement Type="image" Source="logo">
      <Pos X="38" Y="30" W="230" H="52"/>
      <MODIFIER TYPE="Fade" TARGET="Picture">
        <Range X="0" Y="100"/>
      </MODIFIER>
      <Modifier Type="Wobble" Target="Position"/>
    </LayoutElement>
    <LayoutElement Type="Text" Source="Time">
      <Pos X="480" Y="40" W="120" H="14"/>
      <TextColor><Color>0xFFFFE9C4</Color></TextColor>
    </LayoutElement>
    <LayoutElement Type="Text" Source="Date">
      <Pos X="480" Y="58" W="120" H="14"/>
      <TextColor><Color>0xFFF2B36B</Color></TextColor>
    </LayoutElement>
    <LayoutElement Type="line">
      <Pos x1="466" y1="36" x2="466" y2="76"/>
      <Color>0xFFC4632F</Color>
    </LayoutElement>

    <!-- the list -->
    <LayoutElement Type="BOX">
      <Color>0xA82C1020</Color>
      <BorderColor>0xFFC4632F</BorderColor>
      <Pos L="28" T="100" W="424" H="300"/>
    </LayoutElement>
    <LayoutElement Type="Image" Source="Star">
      <Pos X="42" Y="108" W="16" H="16"/>
    </LayoutElement>
    <LayoutElement Type="Text">
      <Constant>Spiele &amp; Programme für den Abend</Constant>
      <Pos X="66" Y="110" W="300" H="14"/>
      <TextColor><Color>0xFFFFC46B</Color></TextColor>
    </LayoutElement>
    <LayoutElement Type="Line">
      <Pos X1="29" Y1="130" X2="451" Y2="130"/>
      <Color>0xFFC4632F</Color>
    </LayoutElement>
    <LayoutElement Type="menu" Source="QOR">
      <Pos X="40" Y="140" W="400" H="240"/>
      <thumbnails align="Left">true</thumbnails>
      <primary source="Title"><justifyx>left</justifyx></primary>
      <secondary source="Descr"><justifyx>right</justifyx></secondary>
      <selection>
        <doglow>TRUE</doglow>
        <textcolor>0xFFFFF3D0</textcolor>
        <secondary><textcolor>0xFFFFC46B</textcolor></secondary>
      </selection>
      <unselitem>
        <textcolor>0xFFE8B98A</textcolor>
        <secondary><textcolor>0xFFB07A5A</textcolor></secondary>
      </unselitem>
      <numitems>5</numitems>
      <scrollfactor>4</scrollfactor>
      <smoothscroll>true</smoothscroll>
      <drawsecondary>true</drawsecondary>
    </LayoutElement>

    <!-- beside it -->
    <LayoutElement Type="Box">
      <Color>0xA82C1020</Color>
      <BorderColor>0xFFC4632F</BorderColor>
      <Pos X="464" Y="100" W="148" H="300"/>
    </LayoutElement>
    <LayoutElement Type="Image" Source="embers">
      <Pos X="474" Y="112" W="128" H="96"/>
      <Rotation>0</Rotation> <!-- no such thing, but it does no harm -->
    </LayoutElement>
    <LayoutElement Type="Text" Source="CGTitle">
      <Pos X="476" Y="220" W="124" H="14"/>
      <TextColor><Color>0xFFFFF3D0</Color></TextColor>
    </LayoutElement>
    <LayoutElement Type="Text" Source="CGDescr">
      <Pos X="476" Y="238" W="124" H="42"/>
      <TextColor><Color>0xFFF2B36B</Color></TextColor>
    </LayoutElement>
    <LayoutElement Type="Image" Source="Stones">
      <Pos X="490" Y="292" W="96" H="96"/>
      <condition>itemsubmenu</condition>
      <timer type="delay">400</timer>
      <timer type="lifetime">9000</timer>
    </LayoutElement>

    <!-- foot -->
    <LayoutElement Type="Box">
      <Color>0xB02C1020</Color>
      <Pos X="28" Y="412" W="584" H="40"/>
    </LayoutElement>
    <LayoutElement Type="Image" Source="::Flame">
      <Pos X="38" Y="420" W="24" H="24"/>
      <Timer Type="CycleOn">700</Timer>
      <Timer Type="CycleOff">150</Timer>
    </LayoutElement>
    <LayoutElement Type="Text">
      <CONSTANT>Glut, Asche – und ein süßer Café crème</CONSTANT>
      <Pos X="72" Y="425" W="280" H="14"/>
      <TextColor>0xE0FFE9C4</TextColor>
    </LayoutElement>
    <LayoutElement Type="Text" Source="TempCPU">
      <Pos X="420" Y="425" W="80" H="14"/>
      <TextColor><Color>0xFFF2B36B</Color></TextColor>
    </LayoutElement>
    <LayoutElement Type="Text" Source="IP">
      <Pos X="520" Y="425" W="84" H="14"/>
      <TextColor><Color>0xFFF2B36B</Color></TextColor>
    </LayoutElement>

    <!-- a clock face is no kind of element, and this text has no place: both are passed over -->
    <LayoutElement Type="Clock"><Pos X="1" Y="1" W="1" H="1"/></LayoutElement>
    <LayoutElement Type="Text" Source="Nowhere"/>
  </LAYOUT>

  <Layout Screen="title">
    <LayoutElement Type="Image" Source="Dunes"><Pos X="0" Y="0" W="640" H="480"/></LayoutElement>
    <LayoutElement Type="Box">
      <Color>0x902C1020</Color>
      <BorderColor>0xFFE79A3C</BorderColor>
      <Pos X="190" Y="150" W="260" H="72"/>
    </LayoutElement>
    <LayoutElement Type="Image" Source="Logo"><Pos X="214" Y="160" W="230" H="52"/></LayoutElement>
    <LayoutElement Type="Text">
      <Constant>Drücke START, um das Feuer zu schüren</Constant>
      <Pos X="222" Y="234" W="230" H="14"/>
      <TextColor><Color>0xFF4A1420</Color></TextColor>
      <Timer Type="CycleOn">900</Timer>
    </LayoutElement>
  </Layout>

  <LAYOUT SCREEN="Load">
    <LayoutElement Type="Box">
      <Color>0xFF1C0A14</Color>
      <Pos W="640" H="480"/>
    </LayoutElement>
    <LayoutElement Type="Image" Source="Embers"><Pos X="160" Y="100" W="320" H="240"/></LayoutElement>
    <LayoutElement Type="Line">
      <Pos X1="160" Y1="356" X2="480" Y2="356"/>
      <Color>0xFFE79A3C</Color>
    </LayoutElement>
    <LayoutElement Type="Text" Source="CGTitle">
      <Pos X="160" Y="364" W="200" H="14"/>
      <TextColor><Color>0xFFFFC46B</Color></TextColor>
    </LayoutElement>
    <LayoutElement Type="Image" Source="Tile"><Pos X="432" Y="364" W="48" H="48"/></LayoutElement>
  </LAYOUT>

  <!-- there is no such screen; what it holds goes to the Title screen -->
  <Layout Screen="Options">
    <LayoutElement Type="Box">
      <Color>0xB02C1020</Color>
      <BorderColor>0xFFC4632F</BorderColor>
      <Pos X="28" Y="412" W="584" H="40"/>
    </LayoutElement>
    <LayoutElement Type="Image" Source="Flame"><Pos X="38" Y="420" W="24" H="24"/></LayoutElement>
    <LayoutElement Type="Text">
      <Constant>Optionen: Größe, Töne, Übergänge</Constant>
      <Pos X="72" Y="425" W="300" H="14"/>
      <TextColor><Color>0xFFFFE9C4</Color></TextColor>
    </LayoutElement>
  </Layout>

  <!-- pictures; on the disk their names are spelt in other letter cases -->
  <RESOURCE type="image" name="Dunes"><File>Media\dunes.jpeg</File></RESOURCE>
  <RESOURCE TYPE="IMAGE" NAME="Logo"><File>Media\Logo.png</File></RESOURCE>
  <Resource Type="Image" Name="Embers"><File>media/embers.wmv</File></Resource>
  <Resource Type="Image" Name="Flame"><File>Media/Flame.PNG</File></Resource>
  <Resource Type="Image" Name="Star"><File>MEDIA\Icons/star.png</File></Resource>
  <Resource Type="Image" Name="Stones"><Comment>Stück für Stück</Comment><File>Media\stones.bmp</File></Resource>
  <Resource Type="Image" Name="Tile"><file>::SkyTile</file></Resource>
  <Resource Type="Colour" Name="Glow"><Value>0xFFE07B39</Value></Resource>

  <delays><saver>240000</saver><title>2500</title></delays>
  <MUSIC><playglobal>ON</playglobal><playrandom>on</playrandom><Directory>Music</Directory></MUSIC>
  <messagebox>
    <boxcolor>0xFF3A1620</boxcolor>
    <bordercolor>0xFFE79A3C</bordercolor>
    <textcolor>0xFFFFE9C4</textcolor>
    <shadowcolor>0xFF1C0A14</shadowcolor>
  </messagebox>
  <SystemMenu>
    <SelectValueColor>0xFFFFF3D0</SelectValueColor>
    <ValueColor>0xFFF2B36B</ValueColor>
    <SelectColor>0xFFFFC46B</SelectColor>
    <TextColor>0xFFE8B98A</TextColor>
    <BorderColor>0xFFC4632F</BorderColor>
    <BoxColor>0xFF2C1020</BoxColor>
  </SystemMenu>
  <Information>
    <Author>J&#246;rg Müller</Author>
    <Version>0.9</Version>
    <Note>Fußnote: mit viel Glut gemacht</Note>
  </Information>
  <Weather>dry</Weather> <!-- unknown sections are passed over -->
</SKIN>
"""
