; The uninstaller, silent with /S. It is no uninstaller of NSIS's own kind, because such a one copies itself elsewhere
; and returns at once. This one runs where it is, and returns when PlotVue is removed.
!include "${__FILEDIR__}/common.nsh"
Caption "Remove PlotVue"
OutFile "${REMOVER}"
VIAddVersionKey "FileDescription" "PlotVue Uninstaller"
InstallButtonText "&Remove"
SubCaption 3 ": Removing"
CompletedText "PlotVue has been removed."

Page custom ConfirmPage
Page instfiles

Var users ; whose PlotVue it is

Function .onInit
  StrCpy $status ${FAILED}
  StrCpy $INSTDIR $EXEDIR
  ReadRegStr $0 HKLM "${LISTED}" "InstallLocation"
  ${If} $0 == $INSTDIR
    SetShellVarContext all
    StrCpy $users " for all users of this computer"
    !insertmacro TakeRights ""
    ${If} ${Errors}
      SetErrorLevel ${NO_RIGHTS}
      Abort
    ${EndIf}
  ${EndIf}
FunctionEnd

Function ConfirmPage
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 24u "PlotVue in the folder $INSTDIR will be removed$users."
  Pop $0
  nsDialogs::Show
FunctionEnd

Section
  !insertmacro TakeTurn
  !insertmacro AwaitEnd "$INSTDIR"
  SetOutPath "$TEMP" ; a working directory cannot be removed
  ClearErrors
  Delete "$INSTDIR\plotvue.exe"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONEXCLAMATION "PlotVue was not removed: a file in $INSTDIR is in use, or may not be \
        changed." /SD IDOK
    !insertmacro GiveUp ${FAILED}
  ${EndIf}
  ReadRegStr $0 SHCTX "${LISTED}" "InstallLocation"
  ${If} $0 == $INSTDIR
    !insertmacro RemoveEntries
  ${EndIf}

  !insertmacro RemoveFiles "$INSTDIR"
  CreateDirectory "$INSTDIR\PlotVue.gone"
  SetShellVarContext current
  ; Folders that a crash has left; another copy of PlotVue that runs has a mark there that cannot be deleted.
  ClearErrors
  Delete "$LOCALAPPDATA\PlotVue\*.mark"
  ${IfNot} ${Errors}
    RMDir /r "$LOCALAPPDATA\PlotVue"
  ${EndIf}
SectionEnd

; A running program cannot be deleted, so this one goes a moment after its end, with its folder: it is tried every
; second for a minute. If an installer comes in between, it removes the mark, and nothing is deleted.
Function .onInstSuccess
  StrCpy $0 'if exist "$INSTDIR\PlotVue.gone" del "$EXEPATH"'
  StrCpy $1 'if not exist "$EXEPATH" rmdir "$INSTDIR\PlotVue.gone" "$INSTDIR" "$LOCALAPPDATA\Programs"'
  StrCpy $2 'if not exist "$INSTDIR\PlotVue.gone" exit'
  ExecShell "open" "$SYSDIR\cmd.exe" '/d /c for /l %i in (1,1,60) do (ping -n 2 127.0.0.1 & ($0) & ($1) & ($2))' SW_HIDE
FunctionEnd

Function .onInstFailed
  SetErrorLevel $status
FunctionEnd
