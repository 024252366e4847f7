; The installer for Windows. tools/windows/pacco.py calls it:
;   makensis -DVERSIONE=1.0.0 -DCARTELLA=<what is installed> -DVIA=<what removes it> -DFATTO=<installer>
;            -DICONA=<folder of somme.ico> installatore.nsi
Target amd64-unicode
SetCompressor /SOLID lzma
!define TITOLO "Esercitazioni sulle somme"
!define REGISTRO "Software\Microsoft\Windows\CurrentVersion\Uninstall\somme"
Name "${TITOLO}"
OutFile "${FATTO}"
BrandingText "${TITOLO} ${VERSIONE}"
; The list of files tells a teacher nothing, and its button is too narrow for its words in Italian.
ShowInstDetails nevershow
ShowUninstDetails nevershow
; The same words stand at the end of a removal.
CompletedText "$(Finito)"

; Who may, installs for everybody; whoever may not, for himself.
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "somme"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${REGISTRO}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Modo"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${REGISTRO}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_USE_PROGRAMFILES64
!include MultiUser.nsh
!include MUI2.nsh

!define MUI_ICON "${ICONA}/somme.ico"
!define MUI_UNICON "${ICONA}/somme.ico"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_TOP "$(PerChi)"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_ALLUSERS "$(PerTutti)"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_CURRENTUSER "$(PerMe)"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE_3LINES
!define MUI_FINISHPAGE_RUN "$INSTDIR\somme.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The first is spoken where the system speaks none of them.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Spanish"

LangString Descrizione ${LANG_ENGLISH} "Addition exercises for primary schools"
LangString Descrizione ${LANG_ITALIAN} "Esercizi di addizione per la scuola primaria"
LangString Descrizione ${LANG_FRENCH} "Exercices d'addition pour l'école primaire"
LangString Descrizione ${LANG_GERMAN} "Additionsübungen für die Grundschule"
LangString Descrizione ${LANG_SPANISH} "Ejercicios de sumas para la escuela primaria"
LangString PerChi ${LANG_ENGLISH} "Who will use the program on this computer?"
LangString PerChi ${LANG_ITALIAN} "Chi userà il programma su questo computer?"
LangString PerChi ${LANG_FRENCH} "Qui utilisera le programme sur cet ordinateur ?"
LangString PerChi ${LANG_GERMAN} "Wer wird das Programm auf diesem Computer benutzen?"
LangString PerChi ${LANG_SPANISH} "¿Quién usará el programa en este ordenador?"
LangString PerTutti ${LANG_ENGLISH} "Everybody"
LangString PerTutti ${LANG_ITALIAN} "Tutti"
LangString PerTutti ${LANG_FRENCH} "Tout le monde"
LangString PerTutti ${LANG_GERMAN} "Alle"
LangString PerTutti ${LANG_SPANISH} "Todos"
LangString PerMe ${LANG_ENGLISH} "Only I"
LangString PerMe ${LANG_ITALIAN} "Solo io"
LangString PerMe ${LANG_FRENCH} "Moi seulement"
LangString PerMe ${LANG_GERMAN} "Nur ich"
LangString PerMe ${LANG_SPANISH} "Solo yo"
LangString Finito ${LANG_ENGLISH} "Completed"
LangString Finito ${LANG_ITALIAN} "Completato"
LangString Finito ${LANG_FRENCH} "Terminé"
LangString Finito ${LANG_GERMAN} "Fertig"
LangString Finito ${LANG_SPANISH} "Completado"
LangString InUso ${LANG_ENGLISH} "The program is running. Close it, then try again."
LangString InUso ${LANG_ITALIAN} "Il programma è aperto. Chiudilo e riprova."
LangString InUso ${LANG_FRENCH} "Le programme est ouvert. Fermez-le, puis réessayez."
LangString InUso ${LANG_GERMAN} "Das Programm läuft. Schließen Sie es und versuchen Sie es erneut."
LangString InUso ${LANG_SPANISH} "El programa está abierto. Ciérrelo e inténtelo de nuevo."

VIProductVersion "${VERSIONE}.0"
VIAddVersionKey /LANG=0 "ProductName" "${TITOLO}"
VIAddVersionKey /LANG=0 "FileDescription" "${TITOLO}"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSIONE}"
VIAddVersionKey /LANG=0 "LegalCopyright" "MIT"

!include LogicLib.nsh

; A program that runs cannot be replaced, and none of its files is, then.
!macro AspettaCheSiaChiuso
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\somme.exe"
      ${ExitDo}
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\somme.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${ExitDo}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(InUso)" /SD IDCANCEL IDRETRY +2
    Abort
  ${Loop}
!macroend

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
  !insertmacro AspettaCheSiaChiuso
  SetOutPath "$INSTDIR"
  ; A choice of language that was made stays.
  SetOverwrite off
  File "${CARTELLA}/LangSetting.ini"
  SetOverwrite on
  File /r /x LangSetting.ini "${CARTELLA}/*"
  WriteUninstaller "$INSTDIR\disinstalla.exe"
  CreateShortCut "$SMPROGRAMS\${TITOLO}.lnk" "$INSTDIR\somme.exe" "" "" "" "" "" "$(Descrizione)"
  WriteRegStr SHCTX "${REGISTRO}" "DisplayName" "${TITOLO}"
  WriteRegStr SHCTX "${REGISTRO}" "DisplayVersion" "${VERSIONE}"
  WriteRegStr SHCTX "${REGISTRO}" "DisplayIcon" "$INSTDIR\somme.exe"
  WriteRegStr SHCTX "${REGISTRO}" "Publisher" "The authors of Esercitazioni sulle somme"
  WriteRegStr SHCTX "${REGISTRO}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${REGISTRO}" "Modo" "$MultiUser.InstallMode"
  WriteRegStr SHCTX "${REGISTRO}" "UninstallString" '"$INSTDIR\disinstalla.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${REGISTRO}" "QuietUninstallString" \
    '"$INSTDIR\disinstalla.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${REGISTRO}" "NoModify" 1
  WriteRegDWORD SHCTX "${REGISTRO}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  !insertmacro AspettaCheSiaChiuso
  !include "${VIA}"
  Delete "$INSTDIR\disinstalla.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${TITOLO}.lnk"
  DeleteRegKey SHCTX "${REGISTRO}"
  ; The choice of language of whoever removes the program.
  SetShellVarContext current
  Delete "$LOCALAPPDATA\somme\LangSetting.ini"
  RMDir "$LOCALAPPDATA\somme"
SectionEnd
