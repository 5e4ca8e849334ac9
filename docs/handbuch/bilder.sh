#!/usr/bin/env bash
# Makes the handbook's pictures anew: docs/handbuch/bilder.sh [PLANLAUF]
set -euo pipefail
planlauf=$(realpath "${1:-$(dirname "$0")/../../build/dev/planlauf}")
cd "$(dirname "$0")/.."
arbeit=/tmp/altardienst-bilder # stands on some of them
rm -rf "$arbeit" && mkdir "$arbeit"
trap 'rm -rf "$arbeit"' EXIT
cp -r ../data/beispiel "$arbeit/daten"
for tag in 2026-11-07 2026-11-14; do # earlier states
    mkdir -p "$arbeit/daten/Stände/$tag 18-30-00"
    cp ../data/beispiel/* "$arbeit/daten/Stände/$tag 18-30-00"
done
mkdir -p "$arbeit/bilder" "$arbeit/pfarrbuero/"{Bilder,Dokumente,Sicherung}
cat >"$arbeit/Neue Messdiener.csv" <<LISTE
Name;Vorname;Geb.;Telefon;Gruppe;Lieblingsfarbe
Brückner;David;16.9.11;0221 4710399;Don Bosco;blau
Brückner;Miriam;16.9.11;0221 4710332;Don Bosco;rot
Ahlers;Jonas;3. März 2014;0221 4711208;Bonifatius;
Yıldız;Elif;24.12.2014;0221 4715560;Bonifatius;lila
Pohl;Marie;31.2.2015;0221 4713370;Hildegard;gelb
Seifert;Paul;2.7.2014;0221 4718091;Rosen;grün
LISTE
# As wide as most screens, so that the lists of records stand open.
echo '{"screens":[{"name":"","x":0,"y":0,"width":1280,"height":800,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]}' \
    >"$arbeit/bildschirm.json"
export HOME=$arbeit/pfarrbuero QT_QPA_PLATFORM=offscreen:configfile=$arbeit/bildschirm.json
"$planlauf" --daten "$arbeit/daten" --heute 21.11.2026 --saat 1 \
    --schritte 1,4,5,6,2 \
    --menue mnuStandardmessen,mnuGruppe,mnuMeßdiener,mnuHelfer,mnuFilePrint,mnuKonfiguration,mnuJubGeb,mnuStatistik,mnuDatenSichern,mnuDatenHolen,mnuHintergrund,mnuHelpAbout,mnuMessen/NeuMeß,mnuMessen/Lektoren,mnuMeßdiener/NeuDiener,mnuFilePrint/Messendruck,mnuStände,mnuAusgleich,mnuVerteilung,mnuDienstzettel,mnuEMail,mnuTabellen,mnuEinlesen/Datei \
    --suche brückner --datei "$arbeit/Neue Messdiener.csv" \
    --bilder "$arbeit/bilder" >/dev/null 2>&1

# The last picture of a window is the one with the finished plan.
bild() {
    cp "$(ls "$arbeit"/bilder/*-"$1".png | tail -1)" "bilder/$2.png"
}
bild Start start
bild Haupt haupt
bild Standardmessen standardmessen
bild Messenliste messenliste
bild NeuMesseDienerFest fest
bild Gruppe gruppe
bild Meßdiener messdiener
bild Helfer helfer
bild Druck druck
bild Konfiguration konfiguration
bild JubiGebu jubigebu
bild Statistik statistik
bild Datensicherung sichern
bild Dateikopie holen
bild Hintergrundsuche hintergrund
bild frmAbout info
bild Ausgleich ausgleich
bild Verteilung verteilung
bild Dienstzettel dienstzettel
bild EMail email
bild Tabellen tabellen
bild Einlesen einlesen
bild NeuMesse neuemesse
bild Lektorrenusw lektoren
bild NeuMeßdiener neuermessdiener
bild CommonDialog1 drucken
bild Stände staende
bild Suchen suchen

# The plan in place of the picture.
mkdir "$arbeit/plan"
"$planlauf" --daten "$arbeit/daten" --heute 21.11.2026 --schritte "" \
    --menue mnuPlanAnzeigen --bilder "$arbeit/plan" >/dev/null 2>&1
cp "$(ls "$arbeit"/plan/*-Haupt.png | tail -1)" bilder/auf-einen-blick.png

# The first start.
mkdir "$arbeit/erster"
"$planlauf" --daten "$arbeit/nichts" --schritte "" \
    --bilder "$arbeit/erster" >/dev/null 2>&1
cp "$arbeit"/erster/*-DateienKopieren.png bilder/kopieren.png
