#!/usr/bin/env python3
"""Lets a browser lay out and print the web pages that webseitenproben writes: on a phone and on a
screen nothing is wider than the window, the field above finds the masses of a name, and on paper
there are as many sheets as the program says.

webseite_pruefen.py WEBSEITENPROBEN [DIRECTORY]

With a directory, the pages stay there, with pictures of them and the printed sheets. Ends with 77
where there is no browser.
"""
import concurrent.futures
import html
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BREITEN = {390: 844, 1280: 900}  # of a phone and of a small screen, with their heights
FEHLT = 77

GESUCHT = "  JÖRG-uwe  a"  # as somebody types it

# Writes into the title what no picture says: the width, the masses before and after a name is
# typed, what the page says of it, what stands before a service, and whether there are heads.
MESSEN = """<script>addEventListener("load",function(){
var w=document.documentElement,feld=document.getElementById("name");
function sichtbar(){return Array.from(document.querySelectorAll("tbody tr"))
.filter(function(z){return z.getClientRects().length>0}).length}
var alle=sichtbar(),feldDa=feld.getClientRects().length>0,breite=w.scrollWidth;
feld.value="%s";feld.dispatchEvent(new Event("input"));
document.title=["Breite",innerWidth,breite,alle,sichtbar(),
document.getElementById("zahl").textContent,feldDa,
getComputedStyle(document.querySelector("tbody td:nth-child(3)"),"::before").content,
document.querySelector("thead").offsetWidth>1].join("|")})</script>""" % GESUCHT


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


def lage(pfad, seite, fenster):
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
    treffer = re.search(r"Breite\|([^<]*)", aus)
    if not treffer:
        sys.exit(f"{seite.name}: the browser did not lay it out:\n{aus[-500:]}")
    return html.unescape(treffer.group(1)).split("|")


def mit_namen(seite):
    """How many masses have the name in one of their services."""
    wort = " ".join(GESUCHT.split()).lower()
    zeilen = re.findall("<tr.*?</tr>", seite.read_text().split("<tbody>")[1])
    texte = (" ".join(re.findall("<td>(.*?)</td>", zeile)[1:]) for zeile in zeilen)
    return sum(wort in html.unescape(text).replace("\u00a0", " ").lower() for text in texte)


def prüfen(pfad, seite, erwartet):
    fehler = []
    gedruckt = blätter(pfad, seite)
    print(f"{seite.name}: {gedruckt} printed, {erwartet} expected", flush=True)
    # One sheet is a promise; of several, the widths are estimated rather too large.
    if gedruckt != 1 if erwartet == 1 else not 0.6 <= gedruckt / erwartet <= 1.2:
        fehler.append(f"{seite.name}: {gedruckt} sheets instead of {erwartet}")
    gefunden = mit_namen(seite)
    satz = {0: "keine Messe", 1: "1 Messe"}.get(gefunden, f"{gefunden} Messen")
    for fenster in BREITEN:
        schmal = fenster == min(BREITEN)
        innen, inhalt, *anderes = lage(pfad, seite, fenster)
        soll = [seite.name.split("-")[0], str(gefunden), satz, "true",
                '"Leuchter: "' if schmal else "none", "false" if schmal else "true"]
        if int(innen) != fenster or int(inhalt) > fenster or anderes != soll:
            fehler.append(f"{seite.name}: {inhalt} wide in {innen}, {anderes} instead of {soll}")
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
