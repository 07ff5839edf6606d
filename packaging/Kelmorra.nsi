; The installer: per user, without administrator's rights, in three languages. Compiled by packaging/make, which gives
; it VERSION, OUTPUT and the list of files.
;   /S          silent        /D=FOLDER   installs there (the last argument, without quotes)
;   /PURGE      with the uninstaller's /S: removes the settings too
; Exit codes: 0, 1 (cancelled), 2 (failed), 3 (Kelmorra is running; nothing was changed).
Unicode true
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
AllowSkipFiles off

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include files.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kelmorra"
!define STORES "Software\VB and VBA Program Settings"
!define EXIT_RUNNING 3

Name "Kelmorra"
OutFile "${OUTPUT}"
BrandingText "Kelmorra ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\Kelmorra"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "CompanyName" "Varnholtine"
VIAddVersionKey /LANG=0 "FileDescription" "Kelmorra - setup"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "ProductName" "Kelmorra"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "LegalCopyright" "Freeware"

!define MUI_ICON "Kelmorra/Kelmorra.ico"
!define MUI_UNICON "Kelmorra/Kelmorra.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "side.bmp"
!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "German"

LangString Running ${LANG_ENGLISH} "Kelmorra is running. Please close it, then click Retry."
LangString Running ${LANG_FRENCH} "Kelmorra est en marche. Veuillez le fermer, puis cliquer sur Réessayer."
LangString Running ${LANG_GERMAN} "Kelmorra läuft. Bitte schließen Sie es, und klicken Sie dann auf Wiederholen."
LangString Purge ${LANG_ENGLISH} "Remove your settings too: the list of databases in Kelmorra's folder with its copies, user names and passwords?$\n$\nIf you choose No, a later installation finds them again. A list in another folder stays in any case."
LangString Purge ${LANG_FRENCH} "Supprimer aussi vos paramètres${U+00A0}: la liste des bases de données dans le dossier de Kelmorra et ses copies, les noms d'utilisateur et les mots de passe${U+00A0}?$\n$\nSi vous choisissez Non, une installation ultérieure les retrouvera. Une liste dans un autre dossier est conservée dans tous les cas."
LangString Purge ${LANG_GERMAN} "Auch Ihre Einstellungen entfernen: die Liste der Datenbanken im Ordner von Kelmorra mit ihren Kopien, Benutzernamen und Kennwörter?$\n$\nWenn Sie Nein wählen, findet eine spätere Installation sie wieder vor. Eine Liste in einem anderen Ordner bleibt in jedem Fall erhalten."

; A program that runs cannot be opened for writing. Asks until it can, or ends everything before a file is changed.
!macro AskWhileRunning Program
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\${Program}"
      ${ExitDo}
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\${Program}" a
    ${IfNot} ${Errors}
      FileClose $0
      ${ExitDo}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(Running)" /SD IDCANCEL IDCANCEL`
      SetErrorLevel ${EXIT_RUNNING}
      Quit
    ${EndIf}
  ${Loop}
!macroend

Section "Kelmorra"
  !insertmacro AskWhileRunning "Kelmorra.exe"
  !insertmacro AskWhileRunning "logon.exe"
  SetOutPath "$INSTDIR"
  !insertmacro InstallFiles
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Kelmorra.lnk" "$INSTDIR\Kelmorra.exe"

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Kelmorra"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Kelmorra.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Varnholtine"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  SectionGetSize 0 $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; The settings file elsewhere is others' too. Only what Kelmorra itself has made beside it and in the user's folders goes.
Function un.RemoveSettings
  Delete "$INSTDIR\Kelmorra.ini"
  Delete "$INSTDIR\Kelmorra.ini.lock"
  Delete "$INSTDIR\Kelmorra.ini.new"
  Delete "$LOCALAPPDATA\Kelmorra\Backup\Kelmorra-*.ini"
  RMDir "$LOCALAPPDATA\Kelmorra\Backup"
  RMDir "$LOCALAPPDATA\Kelmorra"
  DeleteRegKey HKCU "${STORES}\Kelmorra"
  DeleteRegKey /ifempty HKCU "${STORES}"
FunctionEnd

Section "Uninstall"
  !insertmacro AskWhileRunning "Kelmorra.exe"
  !insertmacro AskWhileRunning "logon.exe"
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/PURGE" $2
  ${IfNot} ${Errors}
  ${OrIf} ${Cmd} `MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(Purge)" /SD IDNO IDYES`
    Call un.RemoveSettings
  ${EndIf}
  !insertmacro RemoveFiles
  Delete "$INSTDIR\Uninstall.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Kelmorra.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
