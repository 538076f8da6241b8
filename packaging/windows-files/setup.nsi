; The installer. A user installs PlotVue for himself, which needs no rights, an administrator also for all users.
;   /S            without questions
;   /AllUsers     for all users
;   /CurrentUser  for this user
;   /D=FOLDER     in this folder; must come last
; Without /AllUsers and /CurrentUser, what is installed is updated; if both copies are installed, the user's own.
!include "${__FILEDIR__}/common.nsh"
Caption "PlotVue ${VERSION} Setup"
OutFile "${SETUP}"
VIAddVersionKey "FileDescription" "PlotVue Setup"
!define OWN_FOLDER "$LOCALAPPDATA\Programs\PlotVue"
InstallDir "${OWN_FOLDER}"

Var folder  ; the option /D=FOLDER, or empty
Var own     ; the folder of the user's own copy, or empty
Var shared  ; the folder of all users' copy, or empty
Var scope   ; "all" or "own"
Var told    ; whether the command line gave the scope
Var old     ; the folder of the copy that is updated, or empty
!include "${__FILEDIR__}/setup-pages.nsh"

!macro ReadOption OPTION SCOPE
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "${OPTION}" $0
  ${IfNot} ${Errors}
    StrCpy $scope "${SCOPE}"
    StrCpy $told 1
  ${EndIf}
!macroend

Function .onInit
  StrCpy $status ${FAILED}
  ${If} $INSTDIR != "${OWN_FOLDER}"
    StrCpy $folder "/D=$INSTDIR"
  ${EndIf}
  ReadRegStr $own HKCU "${LISTED}" "InstallLocation"
  ReadRegStr $shared HKLM "${LISTED}" "InstallLocation"
  StrCpy $scope "own"
  ${If} $own == ""
  ${AndIf} $shared != ""
    StrCpy $scope "all"
  ${EndIf}
  !insertmacro ReadOption "/CurrentUser" "own"
  !insertmacro ReadOption "/AllUsers" "all"
  Call SetFolder

  ${If} $scope == "all"
    ${If} $told == 1
    ${OrIf} ${Silent}
      !insertmacro TakeRights "/AllUsers $folder"
      ${If} ${Errors}
        SetErrorLevel ${NO_RIGHTS}
        Abort
      ${EndIf}
    ${EndIf}
  ${EndIf}
FunctionEnd

Function SetFolder
  ${If} $scope == "all"
    SetShellVarContext all
    StrCpy $old $shared
    StrCpy $INSTDIR "$PROGRAMFILES64\PlotVue"
  ${Else}
    SetShellVarContext current
    StrCpy $old $own
    StrCpy $INSTDIR "${OWN_FOLDER}"
  ${EndIf}
  ${If} $folder != ""
    StrCpy $INSTDIR $folder "" 3
  ${ElseIf} $old != ""
    StrCpy $INSTDIR $old
  ${EndIf}
FunctionEnd

; Exchanges a file or folder with the one in $INSTDIR that has its name.
!macro Take NAME
  ${If} ${FileExists} "$INSTDIR\${NAME}"
    Rename "$INSTDIR\${NAME}" "$INSTDIR\PlotVue.old\${NAME}"
  ${EndIf}
  Rename "$INSTDIR\PlotVue.new\${NAME}" "$INSTDIR\${NAME}"
!macroend
!macro PutBack NAME
  ${IfNot} ${FileExists} "$INSTDIR\PlotVue.new\${NAME}"
    Rename "$INSTDIR\${NAME}" "$INSTDIR\PlotVue.new\${NAME}"
  ${EndIf}
  ${If} ${FileExists} "$INSTDIR\PlotVue.old\${NAME}"
    Rename "$INSTDIR\PlotVue.old\${NAME}" "$INSTDIR\${NAME}"
  ${EndIf}
!macroend

; Undoes an installation that has not been completed, and removes what it has left.
Function Undo
  SetOutPath "$TEMP" ; a working directory cannot be removed
  ${If} ${FileExists} "$INSTDIR\PlotVue.old"
  ${AndIf} ${FileExists} "$INSTDIR\PlotVue.new\plotvue.exe"
    !insertmacro PutBack "licences"
    !insertmacro PutBack "uninstall.exe"
  ${EndIf}
  RMDir /r "$INSTDIR\PlotVue.old"
  RMDir /r "$INSTDIR\PlotVue.new"
  RMDir "$INSTDIR\PlotVue.gone" ; of an uninstaller that has just ended
  RMDir "$INSTDIR"
FunctionEnd
Function .onInstFailed
  ${If} $status != ${RUNNING} ; then nothing has been done, and another installer may be at work
    Call Undo
  ${EndIf}
  SetErrorLevel $status
FunctionEnd

Section
  !insertmacro TakeTurn
  !insertmacro AwaitEnd "$INSTDIR"
  !insertmacro AwaitEnd "$old"
  ${If} $scope == "all"
    !insertmacro AwaitEnd "$own"
  ${EndIf}

  ; The new files are written beside the old ones.
  Call Undo
  SetOutPath "$INSTDIR\PlotVue.new\licences"
  File "${LICENCES}/*"
  SetOutPath "$INSTDIR\PlotVue.new"
  File "/oname=plotvue.exe" "${PROGRAM}"
  File "/oname=uninstall.exe" "${REMOVER}"
  ; The old ones step aside and come back if anything fails. plotvue.exe is the last, and is replaced in one step.
  SetOutPath "$INSTDIR"
  CreateDirectory "$INSTDIR\PlotVue.old"
  ClearErrors
  !insertmacro Take "licences"
  !insertmacro Take "uninstall.exe"
  StrCpy $0 0
  ${IfNot} ${Errors}
    System::Call 'kernel32::MoveFileEx(t "$INSTDIR\PlotVue.new\plotvue.exe", t "$INSTDIR\plotvue.exe", i 1) i .r0'
  ${EndIf}
  ${If} $0 = 0
    MessageBox MB_OK|MB_ICONEXCLAMATION "PlotVue was not installed: a file in $INSTDIR is in use, or may not be \
        changed." /SD IDOK
    !insertmacro GiveUp ${FAILED}
  ${EndIf}
  RMDir /r "$INSTDIR\PlotVue.old"
  RMDir "$INSTDIR\PlotVue.new"

  ; Copies that this one replaces
  ${If} $old != ""
  ${AndIf} $old != $INSTDIR
    !insertmacro RemoveFiles "$old"
  ${EndIf}
  ${If} $scope == "all"
  ${AndIf} $own != ""
    SetShellVarContext current
    !insertmacro RemoveEntries
    ${If} $own != $INSTDIR
      !insertmacro RemoveFiles "$own"
      RMDir "$LOCALAPPDATA\Programs" ; fails if other programs are there
    ${EndIf}
    SetShellVarContext all
  ${EndIf}

  ; Started in its own folder, PlotVue assumes a start from the menu and works in a private folder.
  CreateShortcut "$SMPROGRAMS\PlotVue.lnk" "$INSTDIR\plotvue.exe" "" "" "" "" "" "Charts of copied host screens"
  WriteRegStr SHCTX "${LISTED}" "DisplayName" "PlotVue"
  WriteRegStr SHCTX "${LISTED}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${LISTED}" "DisplayIcon" "$INSTDIR\plotvue.exe"
  WriteRegStr SHCTX "${LISTED}" "Publisher" "PlotVue developers"
  WriteRegStr SHCTX "${LISTED}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${LISTED}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${LISTED}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${LISTED}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD SHCTX "${LISTED}" "NoModify" 1
  WriteRegDWORD SHCTX "${LISTED}" "NoRepair" 1
SectionEnd
