; Ends the program that runs from $INSTDIR, so that its files can be replaced.
;
; Its windows are asked to close, the hidden one of the tray as well, which is how it leaves saving
; what it saves. Whoever has not left in time is ended: every choice of the user is stored when it
; is made, so that no setting is lost but the window's place.

!include StrFunc.nsh
${StrStr}
${UnStrStr}

!define ROUND_MS 250
!define ROUNDS_ASKING 40
!define ROUNDS_IN_ALL 60
!define ACCESS_QUERY 0x1000        ; PROCESS_QUERY_LIMITED_INFORMATION
!define ACCESS_TERMINATE 0x1
!define MOST_PROCESSES_BYTES 65536

!macro EndRunningProgram UN

; Leaves on the stack the number of a process that runs $INSTDIR\Lumikey.exe, 0 when there is none.
Function ${UN}FindProgram
    GetFullPathName $R0 "$INSTDIR\Lumikey.exe"
    StrCpy $R1 0
    System::Alloc ${MOST_PROCESSES_BYTES}
    Pop $R2
    System::Call 'psapi::EnumProcesses(p R2, i ${MOST_PROCESSES_BYTES}, *i 0 R3) i .R4'
    ${While} $R3 >= 4
        IntOp $R3 $R3 - 4
        IntPtrOp $R4 $R2 + $R3
        System::Call '*$R4(i .R5)'
        System::Call 'kernel32::OpenProcess(i ${ACCESS_QUERY}, i 0, i R5) p .R6'
        ${If} $R6 P<> 0
            StrCpy $R7 ""
            System::Call 'kernel32::QueryFullProcessImageNameW(p R6, i 0, w .R7, \
                *i ${NSIS_MAX_STRLEN})'
            System::Call 'kernel32::CloseHandle(p R6)'
            ${If} $R7 == $R0
                StrCpy $R1 $R5
                ${Break}
            ${EndIf}
        ${EndIf}
    ${EndWhile}
    System::Free $R2
    Push $R1
FunctionEnd

; Asks each window of process $0 to close, shown or not. Only the toolkit's real windows: the tray
; icon hangs on one that is none.
Function ${UN}AskToClose
    StrCpy $R1 0
    ${Do}
        System::Call 'user32::FindWindowExW(p 0, p R1, p 0, p 0) p .R1'
        ${If} $R1 P= 0
            ${ExitDo}
        ${EndIf}
        System::Call 'user32::GetWindowThreadProcessId(p R1, *i .R2)'
        ${If} $R2 = $0
            System::Call 'user32::GetClassNameW(p R1, w .R3, i ${NSIS_MAX_STRLEN})'
            !if "${UN}" == ""
                ${StrStr} $R4 $R3 "QWindow"
            !else
                ${UnStrStr} $R4 $R3 "QWindow"
            !endif
            ${If} $R4 != ""
                System::Call 'user32::PostMessageW(p R1, i ${WM_CLOSE}, p 0, p 0)'
            ${EndIf}
        ${EndIf}
    ${Loop}
FunctionEnd

; Leaves 0 on the stack, or the number of a process that would not end.
Function ${UN}EndProgram
    StrCpy $1 0
    ${Do}
        Call ${UN}FindProgram
        Pop $0
        ${If} $0 = 0
            ${ExitDo}
        ${EndIf}
        ${If} $1 = 0
            DetailPrint "Closing Lumikey"
        ${EndIf}
        IntOp $1 $1 + 1
        ${If} $1 <= ${ROUNDS_ASKING}
            Call ${UN}AskToClose
        ${ElseIf} $1 <= ${ROUNDS_IN_ALL}
            System::Call 'kernel32::OpenProcess(i ${ACCESS_TERMINATE}, i 0, i r0) p .r2'
            System::Call 'kernel32::TerminateProcess(p r2, i 1)'
            System::Call 'kernel32::CloseHandle(p r2)'
        ${Else}
            ${ExitDo}
        ${EndIf}
        Sleep ${ROUND_MS}
    ${Loop}
    Push $0
FunctionEnd

!macroend
