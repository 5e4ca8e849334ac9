// How the web page of the plan looks and what it does by itself.
#include "exchange/Webseitenstil.h"

#include <cstdio>

namespace altardienst {
namespace {

constexpr const char *FürAlle = R"(
:root{color-scheme:light dark;--grund:#fff;--schrift:#1d1d1f;--leise:#5c5f66;--linie:#d5d7dc;--woche:#7d828c;--kopf:#f1f2f5;--akzent:#0b5a34}
@media(prefers-color-scheme:dark){:root{--grund:#17181b;--schrift:#ececee;--leise:#a6a9b1;--linie:#3a3d44;--woche:#7d828c;--kopf:#24262b;--akzent:#7fd0a5}}
*{box-sizing:border-box}
[hidden]{display:none!important}
body{margin:0 auto;padding:1.2rem 1.5rem;max-width:110rem;background:var(--grund);color:var(--schrift);font:15px/1.4 system-ui,"Segoe UI",Roboto,"Liberation Sans",Arial,sans-serif;overflow-wrap:break-word}
h1{margin:0 0 .2rem;font-size:1.5rem;line-height:1.2}
p{margin:0 0 1rem;color:var(--leise)}
.suche{display:flex;flex-wrap:wrap;gap:.4rem .7rem;align-items:center}
input{font:inherit;color:inherit;background:var(--grund);border:1px solid var(--woche);border-radius:.4rem;padding:.35rem .6rem;min-width:0;width:16rem}
input:focus{outline:2px solid var(--akzent);outline-offset:1px}
table{border-collapse:collapse;width:100%}
th,td{text-align:left;vertical-align:top;padding:.4rem .4rem;border-bottom:1px solid var(--linie)}
th:first-child,td:first-child{padding-left:.3rem}
thead th{position:sticky;top:0;background:var(--kopf);border-bottom:2px solid var(--woche)}
tbody th{white-space:nowrap;font-variant-numeric:tabular-nums}
tbody td:nth-child(2){font-weight:600}
.w>*{border-top:2px solid var(--woche)}
)";

/// More columns have room on a usual screen in smaller type only.
constexpr std::size_t BequemeSpalten = 9;

/// Where the columns would have no room beside each other.
constexpr const char *FürSchmales = R"(body{padding:1rem;font-size:16px}
input{width:100%;font-size:16px}
.suche label{width:100%}
table,tbody,tr,th,td{display:block}
thead{position:absolute;width:1px;height:1px;overflow:hidden;clip-path:inset(50%)}
tr{padding:.7rem 0;border-bottom:1px solid var(--linie)}
tr.w{border-top:2px solid var(--woche)}
.w>*{border-top:0}
th,td,th:first-child{border:0;padding:.1rem 0}
tbody th{color:var(--akzent);font-size:1.1rem}
td:empty{display:none}
td::before{color:var(--leise)}
)";

constexpr const char *FürPapier =
    R"(html,body{background:#fff;font-family:Arial,"Liberation Sans",Helvetica,sans-serif}
:root{color-scheme:light;--grund:#fff;--schrift:#000;--leise:#333;--linie:#999;--woche:#000;--kopf:#fff}
body{padding:0;max-width:none;line-height:1.2}
h1{font-size:1.5em;margin:0}
p{font-size:1em;margin:.2em 0 .6em}
.suche{display:none}
table{table-layout:fixed}
th,td,th:first-child,td:first-child{padding:.2em .3em}
thead{display:table-header-group}
thead th{position:static}
tbody th{white-space:normal}
tr{break-inside:avoid}
)";

Text Gesetzt(const char *muster, double zahl)
{
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, muster, zahl);
    return puffer;
}

} // namespace

std::string Webseitenstil(const std::vector<Text> &köpfe, const Blattmaß &maß)
{
    std::string stil = FürAlle;
    if (köpfe.size() > BequemeSpalten)
        stil += "@media screen and (max-width:90rem){table{font-size:.9em}}\n";
    stil += Gesetzt("@media screen and (max-width:%.0frem){",
                    14 + 5.8 * static_cast<double>(köpfe.size()));
    stil += FürSchmales;
    for (std::size_t k = 2; k < köpfe.size(); ++k) // date and kind speak for themselves
        stil +=
            "td:nth-child(" + std::to_string(k + 1) + ")::before{content:\"" + köpfe[k] + ": \"}\n";
    stil += "}\n@page{size:A4 ";
    stil += maß.Quer ? "landscape" : "portrait";
    stil += ";margin:9mm}\n@media print{\n";
    stil += FürPapier;
    stil += Gesetzt("body{font-size:%.2fpt}\n", maß.Punkt);
    const double rand = 0.2 + maß.Luft / 2;
    stil += Gesetzt("tbody>tr>:nth-child(n){padding-top:%.2fem;", rand);
    stil += Gesetzt("padding-bottom:%.2fem}\n", rand);
    for (std::size_t k = 0; k < maß.Breiten.size(); ++k)
        stil += "thead th:nth-child(" + std::to_string(k + 1) +
                Gesetzt("){width:%.2f%%}\n", maß.Breiten[k]);
    return stil + "}\n";
}

const char *const Webseitenskript = R"(
(function(){
var feld=document.getElementById("name"),zahl=document.getElementById("zahl");
var zeilen=Array.from(document.querySelectorAll("tbody tr"));
function klein(text){return text.replace(/\s+/g," ").trim().toLocaleLowerCase("de")}
var texte=zeilen.map(function(zeile){return klein(Array.from(zeile.cells).slice(2).map(function(zelle){return zelle.textContent}).join(" "))});
feld.parentNode.hidden=false;
feld.addEventListener("input",function(){
var wort=klein(feld.value),messen=0;
zeilen.forEach(function(zeile,i){zeile.hidden=texte[i].indexOf(wort)<0;if(!zeile.hidden)messen++});
zahl.textContent=wort===""?"":messen===0?"keine Messe":messen===1?"1 Messe":messen+" Messen";
});
})();
)";

} // namespace altardienst
