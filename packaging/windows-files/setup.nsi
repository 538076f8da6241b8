; The installer: for the person who runs it, without an administrator; silent with /S.
Unicode true
!include LogicLib.nsh
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off ; the same files give the same installer
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
InstallDirRegKey HKCU "${LISTED}" "InstallLocation" ; a newer version goes where the old one is

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "PlotVue"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "PlotVue Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "2026 PlotVue developers, MIT licence"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; The system keeps a program that runs from being written to.
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
  ; A start in the program's folder is one from the menu: PlotVue then works in a folder of its own.
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
  SetOutPath "$TEMP" ; a folder that a process works in cannot go
  Delete "$SMPROGRAMS\PlotVue.lnk"
  Delete "$INSTDIR\plotvue.exe"
  Delete "$INSTDIR\uninstall.exe"
  RMDir /r "$INSTDIR\licences"
  RMDir "$INSTDIR" ; unless a person has put something there
  RMDir "$LOCALAPPDATA\Programs" ; unless other programs are there
  RMDir /r "$LOCALAPPDATA\PlotVue" ; what a crash has left
  DeleteRegKey HKCU "${LISTED}"
SectionEnd
