#!/usr/bin/env python3
"""Lets a browser lay out and print the web pages that webseitenproben writes: on a phone and on a
screen nothing is wider than the window, and on paper there are as many sheets as the program says.

webseite_pruefen.py WEBSEITENPROBEN [DIRECTORY]

With a directory, the pages stay there, with pictures of them and the printed sheets. Ends with 77
where there is no browser.
"""
import concurrent.futures
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BREITEN = {390: 844, 1280: 900}  # of a phone and of a small screen, with their heights
FEHLT = 77

# Writes into the title what no picture says.
MESSEN = """<script>addEventListener("load",function(){
var w=document.documentElement;
document.title=["Breite",innerWidth,w.scrollWidth,
document.querySelectorAll("tbody tr").length].join(" ")})</script>"""


def browser():
    for name in ("chromium", "chromium-browser", "google-chrome"):
        if pfad := shutil.which(name):
            return pfad
    print("no browser")
    sys.exit(FEHLT)


def aufrufen(pfad, *worte):
    with tempfile.TemporaryDirectory() as profil:
        return subprocess.run(
            [pfad, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
             "--no-first-run", "--disable-background-networking", f"--user-data-dir={profil}",
             *worte],
            check=True, capture_output=True, text=True, timeout=120).stdout


def blätter(pfad, seite):
    druck = seite.with_suffix(".pdf")
    aufrufen(pfad, "--no-pdf-header-footer", f"--print-to-pdf={druck}", seite.as_uri())
    return len(re.findall(rb"/Type\s*/Page\b(?!s)", druck.read_bytes()))


def breite(pfad, seite, fenster):
    probe = seite.with_suffix(f".{fenster}.html")
    probe.write_text(seite.read_text().replace("</head>", MESSEN + "</head>"))
    # A frame is as narrow as a phone; a window of the browser is not.
    rahmen = seite.with_suffix(f".{fenster}.rahmen.html")
    rahmen.write_text(
        f'<body style="margin:0"><iframe id="r" src="{probe.name}" style="border:0" '
        f'width="{fenster}" height="{BREITEN[fenster]}"></iframe>'
        '<script>addEventListener("load",function(){'
        'document.body.append(document.getElementById("r").contentDocument.title)})</script>')
    aus = aufrufen(pfad, "--allow-file-access-from-files", "--dump-dom", rahmen.as_uri())
    probe.unlink()
    rahmen.unlink()
    treffer = re.search(r"Breite (\d+) (\d+) (\d+)", aus)
    if not treffer:
        sys.exit(f"{seite.name}: the browser did not lay it out:\n{aus[-500:]}")
    return tuple(map(int, treffer.groups()))


def prüfen(pfad, seite, erwartet):
    fehler = []
    gedruckt = blätter(pfad, seite)
    print(f"{seite.name}: {gedruckt} printed, {erwartet} expected", flush=True)
    # One sheet is a promise; of several, the widths are estimated rather too large.
    if gedruckt != 1 if erwartet == 1 else not 0.6 <= gedruckt / erwartet <= 1.2:
        fehler.append(f"{seite.name}: {gedruckt} sheets instead of {erwartet}")
    for fenster in BREITEN:
        innen, inhalt, messen = breite(pfad, seite, fenster)
        if (innen, messen) != (fenster, int(seite.name.split("-")[0])) or inhalt > innen:
            fehler.append(f"{seite.name}: {inhalt} wide in {innen}, {messen} masses")
    return fehler


def bilder(pfad, seite):
    for fenster, höhe in BREITEN.items():
        rahmen = seite.with_suffix(".rahmen.html")
        rahmen.write_text(f'<body style="margin:0"><iframe src="{seite.name}" style="border:0" '
                          f'width="{fenster}" height="{2 * höhe}"></iframe>')
        for dunkel in (False, True):
            ziel = seite.with_suffix(f".{fenster}{'.dunkel' if dunkel else ''}.png")
            aufrufen(pfad, f"--screenshot={ziel}", f"--window-size={max(fenster, 500)},{2 * höhe}",
                     *(["--blink-settings=preferredColorScheme=0"] if dunkel else []),
                     rahmen.as_uri())
        rahmen.unlink()


def main():
    pfad = browser()
    with tempfile.TemporaryDirectory() as vorläufig:
        ort = pathlib.Path(sys.argv[2] if len(sys.argv) > 2 else vorläufig).resolve()
        ort.mkdir(parents=True, exist_ok=True)
        subprocess.run([sys.argv[1], ort], check=True)
        seiten = [(ort / name, int(zahl)) for name, zahl in
                  (zeile.split("\t") for zeile in (ort / "seiten.tsv").read_text().splitlines())]
        with concurrent.futures.ThreadPoolExecutor(2) as zwei:
            fehler = sum(zwei.map(lambda eine: prüfen(pfad, *eine), seiten), [])
            if len(sys.argv) > 2:
                list(zwei.map(lambda eine: bilder(pfad, eine[0]), seiten))
    if fehler:
        sys.exit("\n".join(fehler))
    print(f"{len(seiten)} pages laid out and printed as expected")


main()
