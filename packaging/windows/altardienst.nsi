; The installer for Windows: for the user who runs it, without administrator rights.
; makensis -INPUTCHARSET UTF8 -DVERSION=1.0.0 -DQUELLE=DIR -DZIEL=FILE altardienst.nsi
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include MUI2.nsh
!include LogicLib.nsh

Name "Altardienst"
OutFile "${ZIEL}"
InstallDir "$LOCALAPPDATA\Programs\Altardienst"
InstallDirRegKey HKCU "Software\Altardienst" "Verzeichnis"
BrandingText "Altardienst ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1031 "ProductName" "Altardienst"
VIAddVersionKey /LANG=1031 "FileDescription" "Installation von Altardienst"
VIAddVersionKey /LANG=1031 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1031 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1031 "LegalCopyright" "GNU General Public License, Version 3 oder später"

!define MUI_ICON "${SYMBOL}"
!define MUI_UNICON "${SYMBOL}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\altardienst.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Altardienst starten"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"

!define AUSTRAGEN "Software\Microsoft\Windows\CurrentVersion\Uninstall\Altardienst"

; A program that is open can be neither replaced nor removed. It holds a lock on the directory of its
; files for as long as it runs (src/platform/Einzellauf.cpp).
!macro ErstBeenden UN
Function ${UN}ErstBeenden
  nochmal:
    System::Call 'kernel32::OpenMutexW(i 0x100000, i 0, w "Local\Altardienst c:/programm/Altardienst/") p .r0'
    ${If} $0 P<> 0
        System::Call 'kernel32::CloseHandle(p r0)'
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "Altardienst ist noch geöffnet. Bitte beenden Sie es zuerst." /SD IDCANCEL IDRETRY nochmal
        SetErrorLevel 1
        Quit
    ${EndIf}
FunctionEnd
!macroend
!insertmacro ErstBeenden ""
!insertmacro ErstBeenden "un."

Section
    Call ErstBeenden
    SetOutPath "$INSTDIR"
    RMDir /r "$INSTDIR\data" ; of an earlier version
    RMDir /r "$INSTDIR\handbuch"
    RMDir /r "$INSTDIR\bilder"
    RMDir /r "$INSTDIR\Lizenzen"
    File /r "${QUELLE}\*.*"
    WriteUninstaller "$INSTDIR\Entfernen.exe"

    CreateDirectory "$SMPROGRAMS\Altardienst"
    CreateShortcut "$SMPROGRAMS\Altardienst\Altardienst.lnk" "$INSTDIR\altardienst.exe"
    CreateShortcut "$SMPROGRAMS\Altardienst\Altardienst entfernen.lnk" "$INSTDIR\Entfernen.exe"

    WriteRegStr HKCU "Software\Altardienst" "Verzeichnis" "$INSTDIR"
    WriteRegStr HKCU "${AUSTRAGEN}" "DisplayName" "Altardienst"
    WriteRegStr HKCU "${AUSTRAGEN}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${AUSTRAGEN}" "DisplayIcon" "$INSTDIR\altardienst.exe"
    WriteRegStr HKCU "${AUSTRAGEN}" "Publisher" "Die Mitwirkenden an Altardienst"
    WriteRegStr HKCU "${AUSTRAGEN}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${AUSTRAGEN}" "UninstallString" '"$INSTDIR\Entfernen.exe"'
    WriteRegStr HKCU "${AUSTRAGEN}" "QuietUninstallString" '"$INSTDIR\Entfernen.exe" /S'
    WriteRegDWORD HKCU "${AUSTRAGEN}" "NoModify" 1
    WriteRegDWORD HKCU "${AUSTRAGEN}" "NoRepair" 1
SectionEnd

; What the user has made lies elsewhere and stays: c:\programm\Altardienst.
Section "Uninstall"
    Call un.ErstBeenden
    RMDir /r "$INSTDIR\data"
    RMDir /r "$INSTDIR\handbuch"
    RMDir /r "$INSTDIR\bilder"
    RMDir /r "$INSTDIR\Lizenzen"
    Delete "$INSTDIR\altardienst.exe"
    Delete "$INSTDIR\Lizenz.txt"
    Delete "$INSTDIR\Änderungen.md"
    Delete "$INSTDIR\Entfernen.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Altardienst\Altardienst.lnk"
    Delete "$SMPROGRAMS\Altardienst\Altardienst entfernen.lnk"
    RMDir "$SMPROGRAMS\Altardienst"
    DeleteRegKey HKCU "${AUSTRAGEN}"
    DeleteRegKey HKCU "Software\Altardienst"
SectionEnd
