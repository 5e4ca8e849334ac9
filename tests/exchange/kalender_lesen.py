#!/usr/bin/env python3
"""Reads the calendars that kalenderproben writes with a parser that is not ours and compares them
with the plan: every mass at its moment, also around both changes of the clock; everything that is
said of it; the same identities after a new draw.

kalender_lesen.py KALENDERPROBEN
"""
import datetime
import pathlib
import subprocess
import sys
import tempfile
import zoneinfo

import icalendar

BERLIN = zoneinfo.ZoneInfo("Europe/Berlin")
UTC = datetime.timezone.utc
STUNDE = datetime.timedelta(hours=1)
geprüft = 0


def gleich(ist, soll, woran):
    global geprüft
    geprüft += 1
    if ist != soll:
        sys.exit(f"{woran}:\n  is        {ist!r}\n  should be {soll!r}")


def alle_gleich(ist, soll, woran):
    """Lists in any order; names the first that differ."""
    ist, soll = sorted(map(repr, ist)), sorted(map(repr, soll))
    for eines, anderes in zip(ist, soll):
        gleich(eines, anderes, woran)
    gleich(len(ist), len(soll), woran)


def plan_lesen(datei):
    """Masses in the order of the table: moment on the clock, kind, services with names."""
    messen = {}
    for zeile in datei.read_text("utf-8").splitlines():
        nr, termin, art, dienst, name = zeile.split("\t")
        messe = messen.setdefault(
            int(nr), (datetime.datetime.fromisoformat(termin), art, []))
        if dienst:
            messe[2].append((dienst, name))
    return list(messen.values())


def kalender_lesen(datei):
    bytes_ = datei.read_bytes()
    gleich(bytes_.count(b"\n"), bytes_.count(b"\r\n"), f"{datei}: line ends")
    for zeile in bytes_.split(b"\r\n"):
        gleich(len(zeile) <= 75, True, f"{datei}: {zeile!r} is too long")
        zeile.decode("utf-8")  # no letter torn by the folding
    kalender = icalendar.Calendar.from_ical(bytes_)
    gleich(str(kalender["VERSION"]), "2.0", f"{datei}: version")
    gleich(len(kalender.errors), 0, f"{datei}: errors")
    termine = {}
    for termin in kalender.walk("VEVENT"):
        gleich(termin.errors, [], f"{datei}: errors")
        kennung = str(termin["UID"])
        gleich(kennung in termine, False, f"{datei}: {kennung} twice")
        termine[kennung] = termin
    zonen = kalender.walk("VTIMEZONE")
    gleich(len(zonen), 1, f"{datei}: time zones")
    return termine, zonen[0].to_tz()


def beschreibung(dienste):
    zeilen = {}
    for dienst, name in dienste:
        zeilen.setdefault(dienst, []).append(name)
    return "\n".join(f"{dienst}: {', '.join(namen)}" for dienst, namen in zeilen.items())


def soll_zeiten(termin, art):
    """Days, or the moments in universal time."""
    if art == "Wochendienst":
        return termin.date(), termin.date() + datetime.timedelta(days=7)
    beginn = termin.replace(tzinfo=BERLIN).astimezone(UTC)
    doppelt = (termin.replace(tzinfo=BERLIN).utcoffset()
               != termin.replace(tzinfo=BERLIN, fold=1).utcoffset()
               and beginn.astimezone(BERLIN).replace(tzinfo=None) == termin)
    # The second of two hours with the same name cannot be said: such a mass ends after it.
    return beginn, beginn + (2 * STUNDE if doppelt else STUNDE)


def ist_zeiten(termin, zone):
    zeiten = []
    for name in ("DTSTART", "DTEND"):
        zeit = termin[name].dt
        if isinstance(zeit, datetime.datetime):
            gleich(termin[name].params["TZID"], "Europe/Berlin", "time zone")
            uhr = zeit.replace(tzinfo=None)
            ausgemacht = uhr.replace(tzinfo=BERLIN).astimezone(UTC)
            eindeutig = (uhr.replace(tzinfo=BERLIN).utcoffset()
                         == uhr.replace(tzinfo=BERLIN, fold=1).utcoffset())
            if eindeutig:  # by the parser's own table, and by the rules in the file
                gleich(zeit.astimezone(UTC), ausgemacht, f"{uhr} by the parser")
                gleich(zone.localize(uhr).astimezone(UTC), ausgemacht, f"{uhr} by its rules")
            zeit = ausgemacht
        zeiten.append(zeit)
    return tuple(zeiten)


def eine_messe(termin, zone):
    return ist_zeiten(termin, zone) + (str(termin["SUMMARY"]), str(termin.get("DESCRIPTION", "")))


def alle_prüfen(verzeichnis, plan):
    termine, zone = kalender_lesen(verzeichnis / "alle.ics")
    soll = [soll_zeiten(termin, art) + (art or "Messe", beschreibung(dienste))
            for termin, art, dienste in plan]
    ist = [eine_messe(termin, zone) for termin in termine.values()]
    alle_gleich(ist, soll, "masses")
    return termine


def person_prüfen(datei, plan, name):
    termine, zone = kalender_lesen(datei)
    soll = []
    for termin, art, dienste in plan:
        eigene = list(dict.fromkeys(dienst for dienst, wer in dienste if wer == name))
        andere = beschreibung([(dienst, wer) for dienst, wer in dienste if wer != name])
        if eigene:
            text = f"Dienst: {', '.join(eigene)}" + (f"\nMit dabei:\n{andere}" if andere else "")
            soll.append(soll_zeiten(termin, art) + (f"{art or 'Messe'} ({', '.join(eigene)})", text))
    ist = [eine_messe(termin, zone) for termin in termine.values()]
    alle_gleich(ist, soll, name)
    return termine


def folgen_prüfen(vorher, nachher):
    """Both hold these identities; the later file is the newer one."""
    for kennung in vorher.keys() & nachher.keys():
        alt, neu = vorher[kennung], nachher[kennung]
        gleich(neu["SEQUENCE"] > alt["SEQUENCE"], True, f"{kennung}: sequence")
        for name in ("DTSTAMP", "LAST-MODIFIED"):
            gleich(neu[name].dt - alt[name].dt, datetime.timedelta(minutes=1), f"{kennung}: {name}")
        for name in ("DTSTART", "DTEND"):
            gleich(neu[name].dt, alt[name].dt, f"{kennung}: {name}")


def main(programm):
    with tempfile.TemporaryDirectory() as ort:
        subprocess.run([programm, ort], check=True)
        vorher, nachher = pathlib.Path(ort, "1"), pathlib.Path(ort, "2")
        pläne = plan_lesen(vorher / "plan.tsv"), plan_lesen(nachher / "plan.tsv")
        alt, neu = alle_prüfen(vorher, pläne[0]), alle_prüfen(nachher, pläne[1])
        gleich(set(neu), set(alt), "identities after a new draw")
        folgen_prüfen(alt, neu)
        insgesamt = set(alt)
        namen = {name for plan in pläne for _, _, dienste in plan for _, name in dienste}
        gleich(len(namen), 40, "people")
        wieder = 0
        for name in sorted(namen):
            datei = pathlib.Path("personen", name + ".ics")
            alt = person_prüfen(vorher / datei, pläne[0], name)
            neu = person_prüfen(nachher / datei, pläne[1], name)
            folgen_prüfen(alt, neu)
            wieder += len(alt.keys() & neu.keys())
            kennungen = set(alt) | set(neu)
            gleich(kennungen & insgesamt, set(), f"{name}: identities of others")
            insgesamt |= kennungen
        gleich(wieder > 100, True, "services that stayed")
    print(f"{geprüft} comparisons")


if __name__ == "__main__":
    main(sys.argv[1])
