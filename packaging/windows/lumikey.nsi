; The installer. script/package compiles it and hands in:
;   VERSION, SIZE_KB   of the program, and what its files take
;   DIST               the folder that is laid down
;   PICTURES           the folder of side.bmp and header.bmp
;   SOURCES, ICON      the folder of this file, and the program's icon
;   FILES              the list of DIST's files and folders, as macros
;   LANGUAGES          the list of the program's languages, as a macro
;   COMPRESSOR, OUTPUT how to pack, and the installer's own file
;   SIGN               what signs the uninstaller; only where there is a certificate
;
; Exit codes: 0 done, 1 given up by the user, 2 failed (a file could not be written or taken away),
; 3 a newer version is installed, 4 the folder is refused, 5 the running program could not be ended,
; 6 rights are missing.

Unicode true
Target amd64-unicode
SetCompressor ${COMPRESSOR}
!if "${COMPRESSOR}" == "/SOLID lzma"
    SetCompressorDictSize 32 ; MB: all files share what they have in common
!endif
SetDateSave on
AllowSkipFiles off ; whoever is asked may try a file again or give up; silence gives up
RequestExecutionLevel admin
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include WordFunc.nsh
!include "${FILES}"
!include "${LANGUAGES}"
!include "${SOURCES}/running.nsh"

!define NAME Lumikey
!define PUBLISHER TARVENWORKS
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define VETO_KEY "Software\Microsoft\Windows\CurrentVersion\Explorer\StartupApproved\Run"
!define SERVICE_PORT 52316
!define DEFAULT_FOLDER "$PROGRAMFILES64\${NAME}"

!define EXIT_FAILED 2
!define EXIT_NEWER 3
!define EXIT_FOLDER 4
!define EXIT_RUNNING 5
!define EXIT_RIGHTS 6

Name "${NAME}"
OutFile "${OUTPUT}"
!ifdef SIGN
    !uninstfinalize '"${SIGN}" "%1"' = 0
!endif
InstallDir "${DEFAULT_FOLDER}"
BrandingText "${NAME} ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow
VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${NAME} ${VERSION} setup"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey LegalCopyright "${PUBLISHER}"

Var InstalledFolder  ; of the version that is there, "" when there is none
Var WelcomeText
Var FirstNewFolder   ; the first one on the way to $INSTDIR that the installation made
Var IsLaidOver       ; 1 when a copy is there that no installer can remove
Var LanguageList     ; the control
Var LanguageBefore   ; what it showed first
Var SpokenLanguage   ; chosen there, as the settings say it; "" when it was left as it stood
Var IsUpgrade        ; in the uninstaller: 1 when the installer calls it to make room

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "${PICTURES}/header.bmp"
!define MUI_HEADERIMAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_HEADERIMAGE_UNBITMAP "${PICTURES}/header.bmp"
!define MUI_HEADERIMAGE_UNBITMAP_STRETCH AspectFitHeight
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURES}/side.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight

!define MUI_WELCOMEPAGE_TITLE "${NAME} ${VERSION}"
!define MUI_WELCOMEPAGE_TEXT "$WelcomeText"
!insertmacro MUI_PAGE_WELCOME
Page custom ShowLanguages KeepLanguage
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipFolderPageOfUpgrade
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE CheckChosenFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Start ${NAME}"
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!insertmacro EndRunningProgram ""
!insertmacro EndRunningProgram "un."

; Tells why it cannot go on, when there is somebody to tell, and ends.
!macro Refuse CODE TEXT
    MessageBox MB_OK|MB_ICONSTOP "${TEXT}" /SD IDOK
    SetErrorLevel ${CODE}
    Quit
!macroend

!macro CommonStart
    SetRegView 64
    SetShellVarContext all
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != "Admin"
        !insertmacro Refuse ${EXIT_RIGHTS} "${NAME} is installed and removed by administrators."
    ${EndIf}
!macroend

; --- taking away ---------------------------------------------------------------------------------

; Only by name and never a folder with what is in it: what others put there is theirs. Branding that
; a vendor has changed, and which so has another date, stays for the version that comes.
!macro TakeAway FOLDER PATH SOURCE
    !if "${FOLDER}" == "branding"
        GetFileTimeLocal "${DIST}/${SOURCE}" $0 $1
        GetFileTime "$INSTDIR\${PATH}" $2 $3
        ${If} $IsUpgrade = 0
        ${OrIf} "$0 $1" == "$2 $3"
            Delete "$INSTDIR\${PATH}"
        ${EndIf}
    !else
        Delete "$INSTDIR\${PATH}"
    !endif
!macroend

!macro TakeFolderAway FOLDER
    RMDir "$INSTDIR\${FOLDER}"
!macroend

; Takes away the folder and those above it that the installation made, where they are empty now.
!macro RemoveFolders
    GetFullPathName $0 "$INSTDIR"
    ${Do}
        RMDir "$0"
        ${If} $0 == $FirstNewFolder
        ${OrIf} $0 == ""
            ${ExitDo}
        ${EndIf}
        ${GetParent} $0 $0
    ${Loop}
!macroend

; --- installing ----------------------------------------------------------------------------------

Function .onInit
    !insertmacro CommonStart
    StrCpy $WelcomeText "This puts ${NAME} on this computer, for everybody who uses it.$\r$\n$\r$\n\
        ${NAME} lights the keyboard of your laptop: colours, effects and brightness."
    ReadRegStr $InstalledFolder HKLM "${UNINSTALL_KEY}" InstallLocation
    ${If} $InstalledFolder == ""
    ${OrIfNot} ${FileExists} "$InstalledFolder\Uninstall.exe"
        ; It has lost its way out, so it is laid over where it is, unless a folder was named.
        ${If} $InstalledFolder != ""
        ${AndIf} $INSTDIR == "${DEFAULT_FOLDER}"
            StrCpy $INSTDIR $InstalledFolder
        ${EndIf}
        StrCpy $InstalledFolder ""
        ${If} ${Silent}
            Call CheckFolder
            Pop $0
            ${If} $0 != ""
                !insertmacro Refuse ${EXIT_FOLDER} "$0"
            ${EndIf}
        ${EndIf}
        Return
    ${EndIf}

    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" DisplayVersion
    ${VersionCompare} "$0" "${VERSION}" $1
    ${If} $1 = 1
        !insertmacro Refuse ${EXIT_NEWER} "${NAME} $0 is installed, which is newer than \
            ${VERSION}.$\r$\n$\r$\nTo go back to ${VERSION}, remove ${NAME} $0 first. Your settings \
            can stay."
    ${EndIf}
    ${If} $INSTDIR != "${DEFAULT_FOLDER}"
    ${AndIf} $INSTDIR != $InstalledFolder
        !insertmacro Refuse ${EXIT_FOLDER} "${NAME} is installed in $InstalledFolder and is renewed \
            there.$\r$\n$\r$\nTo have it in another folder, remove it first."
    ${EndIf}
    StrCpy $INSTDIR $InstalledFolder
    StrCpy $WelcomeText "${NAME} $0 is installed in $INSTDIR. This makes it ${NAME} ${VERSION}.\
        $\r$\n$\r$\nIf ${NAME} is running, it is closed. Your settings stay as they are."
FunctionEnd

; A version that is there is renewed where it is.
Function SkipFolderPageOfUpgrade
    ${If} $InstalledFolder != ""
        Abort
    ${EndIf}
FunctionEnd

!define SETTINGS "$DOCUMENTS\Corvane\${NAME}\lumikey.ini"

!macro ListLanguage CODE NAME
    ${NSD_CB_AddString} $LanguageList "${NAME}"
    ${If} $1 == "${CODE}"
        StrCpy $LanguageBefore "${NAME}"
    ${EndIf}
    ${If} $SpokenLanguage == "${CODE}" ; who comes back to this page
        StrCpy $2 "${NAME}"
    ${EndIf}
!macroend

!macro ListLanguages DO
    !insertmacro ${DO} "en" "English"
    !insertmacro EachLanguage ${DO}
    !insertmacro ${DO} "system" "The language of Windows"
!macroend

; What the window is to speak. The settings of who installs may say it already; an upgrade leaves it
; to them.
Function ShowLanguages
    ${If} $InstalledFolder != ""
        Abort
    ${EndIf}
    !insertmacro MUI_HEADER_TEXT "Language" "Choose what ${NAME} is to speak."
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateLabel} 0 0 100% 12u "&Language of ${NAME}'s window:"
    Pop $0
    ${NSD_CreateDropList} 0 14u 60% 200u ""
    Pop $LanguageList
    SetShellVarContext current
    ReadINIStr $1 "${SETTINGS}" settings language
    SetShellVarContext all
    ClearErrors
    StrCpy $LanguageBefore "English"
    StrCpy $2 ""
    !insertmacro ListLanguages ListLanguage
    ${If} $2 == ""
        StrCpy $2 $LanguageBefore
    ${EndIf}
    ${NSD_CB_SelectString} $LanguageList "$2"
    nsDialogs::Show
FunctionEnd

!macro TakeLanguage CODE NAME
    ${If} $0 == "${NAME}"
        StrCpy $SpokenLanguage "${CODE}"
    ${EndIf}
!macroend

; What was left as it stood is not written: a vendor's branding may choose another language for those
; who have no wish.
Function KeepLanguage
    ${NSD_GetText} $LanguageList $0
    StrCpy $SpokenLanguage ""
    ${If} $0 != $LanguageBefore
        !insertmacro ListLanguages TakeLanguage
    ${EndIf}
FunctionEnd

; Into the settings of who installs. An installation is whole without it.
Function WriteLanguage
    ${If} $SpokenLanguage != ""
        SetShellVarContext current
        CreateDirectory "$DOCUMENTS\Corvane\${NAME}"
        WriteINIStr "${SETTINGS}" settings language "$SpokenLanguage"
        SetShellVarContext all
        ClearErrors
    ${EndIf}
FunctionEnd

!macro NoticeStranger FOLDER PATH SOURCE
    !if "${FOLDER}" == ""
        ${If} ${FileExists} "$INSTDIR\${PATH}"
            StrCpy $0 "$INSTDIR holds another program, which ${NAME} would damage: ${PATH}."
        ${EndIf}
    !endif
!macroend

; Leaves on the stack why $INSTDIR is no place for the program, "" when it is one. Whole drives need
; no check: NSIS takes none.
Function CheckFolder
    Push $0
    Push $1
    StrCpy $0 ""
    ${IfNot} ${FileExists} "$INSTDIR\${NAME}.exe"
        !insertmacro EachFile NoticeStranger
    ${EndIf}
    StrLen $1 $WINDIR
    StrCpy $1 $INSTDIR $1
    ${If} $1 == $WINDIR
        StrCpy $0 "$INSTDIR belongs to Windows. Please choose another folder."
    ${EndIf}
    Pop $1
    Exch $0
FunctionEnd

Function CheckChosenFolder
    Call CheckFolder
    Pop $0
    ${If} $0 != ""
        MessageBox MB_OK|MB_ICONEXCLAMATION "$0"
        Abort
    ${EndIf}
FunctionEnd

; What a vendor has made of the branding outlives an upgrade. "SetOverwrite off" would keep it, too,
; but passes over any failure.
!macro LayDown FOLDER PATH SOURCE
    SetOutPath "$INSTDIR\${FOLDER}"
    !if "${FOLDER}" == "branding"
        ${IfNot} ${FileExists} "$INSTDIR\${PATH}"
            File "${DIST}/${SOURCE}"
        ${EndIf}
    !else
        File "${DIST}/${SOURCE}"
    !endif
!macroend

; Leaves on the stack the first folder on the way to $INSTDIR that is not there yet.
Function FirstNewFolder
    Push $0
    Push $1
    StrCpy $0 $INSTDIR
    ${Do}
        ${GetParent} $0 $1
        ${If} $1 == ""
        ${OrIf} ${FileExists} "$1\*.*"
            ${ExitDo}
        ${EndIf}
        StrCpy $0 $1
    ${Loop}
    Pop $1
    Exch $0
FunctionEnd

; Runs a command of Windows without a window of its own. What comes of it is not looked at.
!macro RunTool LINE
    nsExec::Exec '"$SYSDIR\${LINE}'
    Pop $0
!macroend

; Virtual machines are given blocks of ports out of the range that this one is in. While it lies in
; such a block nobody can listen on it, unless it was set aside before.
!macro SetPortAside DO
    !insertmacro RunTool 'netsh.exe" int ipv4 ${DO} excludedportrange protocol=tcp \
        startport=${SERVICE_PORT} numberofports=1 store=persistent'
!macroend

!macro ReturnWhenBelow FOLDER
    StrLen $0 "${FOLDER}\"
    StrCpy $0 $INSTDIR $0
    ${If} $0 == "${FOLDER}\"
        Return
    ${EndIf}
!macroend

; Program Files is the administrators' own. Elsewhere others may write, and what they put beside the
; program would run with the rights of whoever starts it: there the folder, with what is in it, is
; made like one of Program Files. Disks that know no rights are left as they are.
Function ProtectFolder
    !insertmacro ReturnWhenBelow "$PROGRAMFILES64"
    !insertmacro ReturnWhenBelow "$PROGRAMFILES32"
    ; The groups by their numbers: their names are translated. Administrators, system, users.
    !insertmacro RunTool 'icacls.exe" "$INSTDIR" /inheritance:r /grant:r \
        *S-1-5-32-544:(OI)(CI)F *S-1-5-18:(OI)(CI)F *S-1-5-32-545:(OI)(CI)RX /Q'
    ; Whoever owns a file may give himself its rights back.
    !insertmacro RunTool 'icacls.exe" "$INSTDIR" /setowner *S-1-5-32-544 /T /C /Q'
    !insertmacro RunTool 'icacls.exe" "$INSTDIR\*" /reset /T /C /Q'
FunctionEnd

!macro AbortOnErrors
    ${If} ${Errors}
        Abort
    ${EndIf}
!macroend

Section
    Call EndProgram
    Pop $0
    ${If} $0 != 0
        !insertmacro Refuse ${EXIT_RUNNING} "${NAME} is running and could not be ended."
    ${EndIf}

    ; Each version knows its own files, and this one's may be others.
    ${If} $InstalledFolder != ""
        DetailPrint "Removing the version before"
        ClearErrors
        ExecWait '"$INSTDIR\Uninstall.exe" /S /UPGRADE _?=$INSTDIR' $0
        ${If} ${Errors}
        ${OrIf} $0 <> 0
            !insertmacro Refuse ${EXIT_FAILED} "The version before could not be removed from \
                $INSTDIR, so ${NAME} ${VERSION} is not installed.$\r$\n$\r$\nIf its Uninstall.exe \
                is damaged, delete that file and start this again."
        ${EndIf}
    ${Else}
        Call FirstNewFolder
        Pop $FirstNewFolder
        ${If} ${FileExists} "$INSTDIR\${NAME}.exe"
            StrCpy $IsLaidOver 1
        ${EndIf}
    ${EndIf}

    ; A file that cannot be written ends the section by itself.
    ClearErrors
    CreateDirectory "$INSTDIR"
    GetFullPathName $INSTDIR "$INSTDIR" ; without a way back up in it
    !insertmacro AbortOnErrors
    Call ProtectFolder
    !insertmacro EachFile LayDown
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    CreateShortCut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${NAME}.exe"
    !insertmacro AbortOnErrors

    ${If} $InstalledFolder == ""
        WriteRegStr HKLM "${UNINSTALL_KEY}" FirstNewFolder "$FirstNewFolder"
    ${EndIf}
    WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayName "${NAME}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" Publisher "${PUBLISHER}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\${NAME}.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" EstimatedSize ${SIZE_KB}
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoRepair 1
    WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    !insertmacro AbortOnErrors
    !insertmacro SetPortAside add
    Call WriteLanguage
SectionEnd

; Takes back what was laid down before the section ended in failure: half a program is none. Where an
; installed version was before, its files are gone, but its entry and its way out stay: by them this
; can be tried again in the same folder, or given up. A copy that was laid over keeps what it has.
Function .onInstFailed
    SetErrorLevel ${EXIT_FAILED}
    SetOutPath "$TEMP" ; a folder that somebody is in cannot be removed
    StrCpy $1 ""
    ${If} $IsLaidOver = 1
        StrCpy $1 "The copy that was there may not start any more. "
    ${Else}
        StrCpy $IsUpgrade 1 ; branding that a vendor has changed stays
        !insertmacro EachFile TakeAway
        !insertmacro EachFolder TakeFolderAway
        ${If} $InstalledFolder == ""
            Delete "$SMPROGRAMS\${NAME}.lnk"
            Delete "$INSTDIR\Uninstall.exe"
            !insertmacro RemoveFolders
            DeleteRegKey HKLM "${UNINSTALL_KEY}"
        ${Else}
            StrCpy $1 "The version before is removed already. "
        ${EndIf}
    ${EndIf}
    MessageBox MB_OK|MB_ICONSTOP "${NAME} ${VERSION} could not be put into $INSTDIR and is not \
        installed. $1Your settings stay as they are.$\r$\n$\r$\nOnce its files can be written, \
        start this again." /SD IDOK
FunctionEnd

; By way of the desktop, which has the user's own rights and not the installer's.
Function StartProgram
    Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\${NAME}.lnk"'
FunctionEnd

; --- removing ------------------------------------------------------------------------------------

Function un.onInit
    !insertmacro CommonStart
    StrCpy $IsUpgrade 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/UPGRADE" $1
    ${IfNot} ${Errors}
        StrCpy $IsUpgrade 1
    ${EndIf}
    ClearErrors
FunctionEnd

; Takes away the autostart entry of everybody who is signed in, where it names a program that is
; gone, and that Task Manager has switched it off. Entries of other copies stay.
Function un.RemoveAutostart
    StrCpy $0 0
    ${Do}
        EnumRegKey $1 HKU "" $0
        ${If} $1 == ""
            ${ExitDo}
        ${EndIf}
        ReadRegStr $2 HKU "$1\${RUN_KEY}" "${NAME}"
        ${If} $2 != ""
        ${AndIfNot} ${FileExists} "$2"
            DeleteRegValue HKU "$1\${RUN_KEY}" "${NAME}"
            DeleteRegValue HKU "$1\${VETO_KEY}" "${NAME}"
        ${EndIf}
        IntOp $0 $0 + 1
    ${Loop}
FunctionEnd

; Asks for the settings of who removes the program; silence keeps them.
Function un.OfferToRemoveSettings
    SetShellVarContext current
    ${If} ${FileExists} "$DOCUMENTS\Corvane\${NAME}\lumikey.ini"
        MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Remove your settings, too?$\r$\n$\r$\n\
            They hold your colours, effects and brightness, in $DOCUMENTS\Corvane\${NAME}." \
            /SD IDNO IDNO kept
        Delete "$DOCUMENTS\Corvane\${NAME}\lumikey.ini"
        ; What the program makes beside it: a damaged file that it put aside, and what a program
        ; that was killed in the middle of a write leaves.
        Delete "$DOCUMENTS\Corvane\${NAME}\lumikey.ini.*"
        RMDir "$DOCUMENTS\Corvane\${NAME}"
        RMDir "$DOCUMENTS\Corvane"
        kept:
    ${EndIf}
    SetShellVarContext all
FunctionEnd

Section Uninstall
    SetOutPath "$TEMP" ; a folder that somebody is in cannot be removed
    ${If} $IsUpgrade = 0
        Call un.EndProgram
        Pop $0
        ${If} $0 != 0
            !insertmacro Refuse ${EXIT_RUNNING} "${NAME} is running and could not be ended."
        ${EndIf}
    ${EndIf}

    ; First, because a program that stays should stay whole.
    Delete "$INSTDIR\${NAME}.exe"
    ${If} ${FileExists} "$INSTDIR\${NAME}.exe"
        !insertmacro Refuse ${EXIT_FAILED} "${NAME} could not be removed from $INSTDIR."
    ${EndIf}
    !insertmacro EachFile TakeAway
    ${If} $IsUpgrade = 1
        !insertmacro EachFolder TakeFolderAway
        Return
    ${EndIf}

    Delete "$INSTDIR\updates\work.ini" ; the program's own note
    !insertmacro EachFolder TakeFolderAway
    Delete "$SMPROGRAMS\${NAME}.lnk"
    Delete "$INSTDIR\Uninstall.exe"
    ReadRegStr $FirstNewFolder HKLM "${UNINSTALL_KEY}" FirstNewFolder
    !insertmacro RemoveFolders
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
    !insertmacro SetPortAside delete
    Call un.RemoveAutostart
    Call un.OfferToRemoveSettings
    ${If} ${FileExists} "$INSTDIR\*.*"
        MessageBox MB_OK|MB_ICONINFORMATION "${NAME} is removed. Files that it did not bring stay \
            in $INSTDIR." /SD IDOK
    ${EndIf}
SectionEnd
