; The installer. It installs for the current user without administrator rights, and silently with /S.
Unicode true
!include LogicLib.nsh
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off ; makes the installer reproducible
ManifestDPIAware true
RequestExecutionLevel user

Name "PlotVue ${VERSION}"
Caption "PlotVue ${VERSION} Setup"
BrandingText "PlotVue ${VERSION}"
OutFile "${SETUP}"
Icon "${ICON}"
UninstallIcon "${ICON}"
InstallDir "$LOCALAPPDATA\Programs\PlotVue"
!define LISTED "Software\Microsoft\Windows\CurrentVersion\Uninstall\PlotVue"
InstallDirRegKey HKCU "${LISTED}" "InstallLocation" ; an update is installed in the old folder

!getdllversion "${PROGRAM}" number
VIProductVersion "${number1}.${number2}.${number3}.${number4}"
VIAddVersionKey "ProductName" "PlotVue"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "PlotVue Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "2026 PlotVue developers, MIT licence"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; Windows does not let a running program be overwritten.
!macro EndWhenInUse
  ${If} ${FileExists} "$INSTDIR\plotvue.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\plotvue.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "PlotVue is running. Please leave it, and try again." /SD IDOK
      SetErrorLevel 2
      Abort
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Section
  !insertmacro EndWhenInUse
  SetOutPath "$INSTDIR"
  File "/oname=plotvue.exe" "${PROGRAM}"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  SetOutPath "$INSTDIR\licences"
  File "${LICENCES}/*"
  ; Started in its own folder, PlotVue assumes a start from the menu and works in a private folder.
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\PlotVue.lnk" "$INSTDIR\plotvue.exe" "" "" "" "" "" "Charts of copied host screens"

  WriteRegStr HKCU "${LISTED}" "DisplayName" "PlotVue"
  WriteRegStr HKCU "${LISTED}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${LISTED}" "DisplayIcon" "$INSTDIR\plotvue.exe"
  WriteRegStr HKCU "${LISTED}" "Publisher" "PlotVue developers"
  WriteRegStr HKCU "${LISTED}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${LISTED}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${LISTED}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${LISTED}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKCU "${LISTED}" "NoModify" 1
  WriteRegDWORD HKCU "${LISTED}" "NoRepair" 1
SectionEnd

Section uninstall
  !insertmacro EndWhenInUse
  SetOutPath "$TEMP" ; a working directory cannot be removed
  Delete "$SMPROGRAMS\PlotVue.lnk"
  Delete "$INSTDIR\plotvue.exe"
  Delete "$INSTDIR\uninstall.exe"
  RMDir /r "$INSTDIR\licences"
  RMDir "$INSTDIR" ; fails if the user has put files there
  RMDir "$LOCALAPPDATA\Programs" ; fails if other programs are there
  RMDir /r "$LOCALAPPDATA\PlotVue" ; left by a crash
  DeleteRegKey HKCU "${LISTED}"
SectionEnd
