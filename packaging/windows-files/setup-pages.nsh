; The questions of the installer: who is to have PlotVue, and in which folder.
Page custom ScopePage LeaveScopePage
DirText "$question"
Page directory AskFolder
Page instfiles
CompletedText "PlotVue is installed. It is in the start menu."

Var ownButton
Var sharedButton
Var question

; Asks who is to have PlotVue, if that is a question: the user may become an administrator, or all users have it.
Function ScopePage
  UserInfo::GetOriginalAccountType
  Pop $0
  ${If} $told == 1
    Abort
  ${ElseIf} $0 != "Admin"
  ${AndIf} $shared == ""
    Abort
  ${EndIf}
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 12u "Who is to use PlotVue on this computer?"
  Pop $0
  ${NSD_CreateRadioButton} 8u 20u 90% 12u "Only &me"
  Pop $ownButton
  ${NSD_CreateRadioButton} 8u 36u 90% 12u "&All users of this computer (needs an administrator)"
  Pop $sharedButton
  ${If} $shared != ""
    ReadRegStr $0 HKLM "${LISTED}" "DisplayVersion"
    ${NSD_CreateLabel} 0 60u 100% 24u "PlotVue $0 is installed for all users. If you install it only for you, \
        that copy remains."
    Pop $0
  ${ElseIf} $own != ""
    ReadRegStr $0 HKCU "${LISTED}" "DisplayVersion"
    ${NSD_CreateLabel} 0 60u 100% 24u "PlotVue $0 is installed only for you. If you install it for all users, \
        that copy is removed."
    Pop $0
  ${EndIf}
  ${NSD_OnClick} $ownButton MarkScope
  ${NSD_OnClick} $sharedButton MarkScope
  ${If} $scope == "all"
    ${NSD_Check} $sharedButton
    ${NSD_SetFocus} $sharedButton
  ${Else}
    ${NSD_Check} $ownButton
    ${NSD_SetFocus} $ownButton
  ${EndIf}
  Push 0
  Call MarkScope
  nsDialogs::Show
FunctionEnd

; Takes the chosen scope. The button that leads on bears a shield if an administrator's rights must be asked for.
Function MarkScope
  Pop $0
  StrCpy $1 0
  StrCpy $scope "own"
  ${NSD_GetState} $sharedButton $0
  ${If} $0 = ${BST_CHECKED}
    StrCpy $scope "all"
    !insertmacro CheckRights
    ${If} ${Errors}
      StrCpy $1 1
    ${EndIf}
  ${EndIf}
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 0x160C 0 $1 ; BCM_SETSHIELD
FunctionEnd

Function LeaveScopePage
  ${If} $scope == "all"
    !insertmacro TakeRights "/AllUsers $folder"
    ${If} ${Errors}
      Abort
    ${EndIf}
  ${EndIf}
  Call SetFolder
FunctionEnd

Function AskFolder
  StrCpy $question "Setup will install PlotVue ${VERSION} in this folder."
  ${If} $old != ""
    StrCpy $question "Setup will update PlotVue to ${VERSION}. If you choose another folder, PlotVue moves there."
  ${EndIf}
FunctionEnd
