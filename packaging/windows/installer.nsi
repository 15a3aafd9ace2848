; SPDX-FileCopyrightText: 2026 Kavrondel
; SPDX-License-Identifier: MIT
;
; For one user, without elevation. VERSION, STAGE, OUTPUT, REMOVAL and ICON come from lib/package.sh.

; 64 bits, as the program
Target amd64-unicode
ManifestDPIAware true
ManifestLongPathAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvanto"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
; The program writes its start with the system under this name.
!define RUN_VALUE "Pendulix Basic"

Name "Orvanto"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Orvanto"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Orvanto ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}"
VIFileVersion "${VERSION}"
VIAddVersionKey "ProductName" "Orvanto"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Orvanto Setup"
VIAddVersionKey "CompanyName" "Kavrondel"
VIAddVersionKey "LegalCopyright" "Copyright (c) 2026 Kavrondel, MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!macro LANGUAGE NAME ID RUNNING
    !insertmacro MUI_LANGUAGE "${NAME}"
    LangString running ${LANG_${ID}} "${RUNNING}"
!macroend
!insertmacro LANGUAGE English ENGLISH "Orvanto is running. Please close it and try again."
!insertmacro LANGUAGE German GERMAN "Orvanto läuft noch. Bitte beenden Sie das Programm und versuchen Sie es erneut."
!insertmacro LANGUAGE Spanish SPANISH "Orvanto se está ejecutando. Ciérrelo e inténtelo de nuevo."
!insertmacro LANGUAGE French FRENCH "Orvanto est en cours d'exécution. Fermez-le, puis réessayez."
!insertmacro LANGUAGE Italian ITALIAN "Orvanto è in esecuzione. Chiuderlo e riprovare."
!insertmacro LANGUAGE Japanese JAPANESE "Orvanto が実行中です。終了してからもう一度お試しください。"
!insertmacro LANGUAGE Dutch DUTCH "Orvanto is actief. Sluit het programma en probeer het opnieuw."
!insertmacro LANGUAGE Polish POLISH "Program Orvanto jest uruchomiony. Zamknij go i spróbuj ponownie."
!insertmacro LANGUAGE PortugueseBR PORTUGUESEBR "O Orvanto está em execução. Feche-o e tente novamente."
!insertmacro LANGUAGE Russian RUSSIAN "Программа Orvanto запущена. Закройте её и повторите попытку."
!insertmacro LANGUAGE Turkish TURKISH "Orvanto çalışıyor. Lütfen kapatıp yeniden deneyin."
!insertmacro LANGUAGE Ukrainian UKRAINIAN "Програму Orvanto запущено. Закрийте її та спробуйте ще раз."
!insertmacro LANGUAGE SimpChinese SIMPCHINESE "Orvanto 正在运行。请将其关闭后重试。"

; Windows keeps the file of a running program from being written. Exit code 2 when the user gives up.
!macro REQUIRE_NOT_RUNNING
    try:
    IfFileExists "$INSTDIR\orvanto.exe" 0 free
    ClearErrors
    FileOpen $0 "$INSTDIR\orvanto.exe" a
    IfErrors 0 close
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(running)" /SD IDCANCEL IDRETRY try
    SetErrorLevel 2
    Quit
    close:
    FileClose $0
    free:
!macroend

Section
    !insertmacro REQUIRE_NOT_RUNNING
    SetOutPath "$INSTDIR"
    File /r "${STAGE}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Orvanto.lnk" "$INSTDIR\orvanto.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Orvanto"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\orvanto.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Kavrondel"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; Takes away what was installed and nothing else: settings, logs and whatever the user put there stay.
Section Uninstall
    !insertmacro REQUIRE_NOT_RUNNING
    !include "${REMOVAL}"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Orvanto.lnk"
    ; Another copy of the program may own the value. The comparison ignores case, as the program's does.
    ReadRegStr $0 HKCU "${RUN_KEY}" "${RUN_VALUE}"
    StrCmp $0 "$INSTDIR\orvanto.exe -auto" 0 +2
    DeleteRegValue HKCU "${RUN_KEY}" "${RUN_VALUE}"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
