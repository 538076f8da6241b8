; What the installer and the uninstaller have in common.
; Exit codes: 0 done; of NSIS itself, 1 cancelled and 2 failed; and two more. Unless it is 0, nothing is changed.
!define FAILED 2
!define RUNNING 3   ; PlotVue is running, or another of these programs
!define NO_RIGHTS 4 ; all users have it, which needs an administrator

Unicode true
Target amd64-unicode
!include LogicLib.nsh
!include nsDialogs.nsh
!include FileFunc.nsh
SetCompressor /SOLID lzma
SetDateSave off ; makes the programs reproducible
ManifestDPIAware true
XPStyle on
RequestExecutionLevel user ; asks for an administrator's rights only where they are needed
ShowInstDetails nevershow
AllowSkipFiles off

Name "PlotVue ${VERSION}"
BrandingText "PlotVue ${VERSION}"
Icon "${ICON}"

!getdllversion "${PROGRAM}" number
VIProductVersion "${number1}.${number2}.${number3}.${number4}"
VIAddVersionKey "ProductName" "PlotVue"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "2026 PlotVue developers, MIT licence"

; Below HKCU for a user's own copy, below HKLM for the copy of all users. SHCTX and $SMPROGRAMS are those of the copy
; that SetShellVarContext has chosen.
!define LISTED "Software\Microsoft\Windows\CurrentVersion\Uninstall\PlotVue"

Var status ; the exit code of a section that fails

; Sets the error flag if this process may not write where all users read.
!macro CheckRights
  ClearErrors
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 != "Admin"
    SetErrors
  ${EndIf}
!macroend

; Returns if this process has an administrator's rights. Otherwise runs the program again as an administrator, and ends
; this process. Sets the error flag if that fails.
!macro TakeRights ARGUMENTS
  !insertmacro CheckRights
  ${If} ${Errors}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/Restarted" $0
    ${If} ${Errors}
    ${AndIfNot} ${Silent}
      ClearErrors
      HideWindow
      ExecShellWait "runas" "$EXEPATH" "/Restarted ${ARGUMENTS}"
      ${IfNot} ${Errors}
        SetErrorLevel 0
        Quit
      ${EndIf}
      BringToFront
    ${EndIf}
    MessageBox MB_OK|MB_ICONEXCLAMATION "Only an administrator can install or remove PlotVue \
        for all users." /SD IDOK
    SetErrors
  ${EndIf}
!macroend

!macro GiveUp CODE
  StrCpy $status ${CODE}
  Abort "Nothing was changed."
!macroend

; Returns if no other installer or uninstaller of PlotVue is at work; until this one ends, no other will be.
!macro TakeTurn
  System::Call 'kernel32::CreateMutex(p 0, i 0, t "Global\PlotVueSetup") p .r0 ?e'
  Pop $1
  ${If} $0 P= 0 ; another user's
  ${OrIf} $1 = 183 ; ERROR_ALREADY_EXISTS
    MessageBox MB_OK|MB_ICONEXCLAMATION "Another installation of PlotVue is going on. Please try again when it is \
        done." /SD IDOK
    !insertmacro GiveUp ${RUNNING}
  ${EndIf}
!macroend

; Returns when no PlotVue from that folder runs; Windows does not let a running program be changed.
!macro AwaitEnd FOLDER
  ${Do}
    ; Opens it for writing (0x40000000), shared with others (7), if it exists (3).
    System::Call 'kernel32::CreateFile(t "${FOLDER}\plotvue.exe", i 0x40000000, i 7, p 0, i 3, i 0, p 0) p .r0 ?e'
    Pop $1
    System::Call 'kernel32::CloseHandle(p r0)'
    ${If} $0 P<> -1
    ${OrIf} $1 <> 32 ; ERROR_SHARING_VIOLATION
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "PlotVue is running, perhaps for another user. \
        Please leave it, then press Retry." /SD IDCANCEL IDCANCEL`
      !insertmacro GiveUp ${RUNNING}
    ${EndIf}
  ${Loop}
!macroend

!macro RemoveFiles FOLDER
  Delete "${FOLDER}\plotvue.exe"
  RMDir /r "${FOLDER}\licences"
  Delete "${FOLDER}\uninstall.exe"
  RMDir "${FOLDER}" ; fails if the user has put files there
!macroend

!macro RemoveEntries
  Delete "$SMPROGRAMS\PlotVue.lnk"
  DeleteRegKey SHCTX "${LISTED}"
!macroend
