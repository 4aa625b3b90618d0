; Installs the server for programs of both widths, for all users of the machine, and registers it. Silent with /S;
; the exit status is then 0 or, where something could not be done, 2. Given by the command line:
;   VERSION   of the project          STUB      amd64-unicode or x86-unicode, which runs everywhere
;   SOURCES   the project's folder    X64, X86  folders with what was built; without X86 there is no such half
;   OUTPUT    the file to write
Target ${STUB}
Unicode true
Name "MURTimeline ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\MURTimeline"
RequestExecutionLevel admin
ManifestDPIAware true
SetCompressor /SOLID lzma
SetDateSave off
BrandingText " "
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "MURTimeline"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs MURTimeline"
VIAddVersionKey LegalCopyright ""

!include LogicLib.nsh
!include x64.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\MURTimeline"
; The platform's own programs, which register a server of their width.
!define REGISTER64 "$WINDIR\System32\regsvr32.exe"
!define REGISTER32 "$WINDIR\SysWOW64\regsvr32.exe"

Page license
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles
LicenseData "${SOURCES}/LICENSE"

Function .onInit
  ${IfNot} ${RunningX64}
    MessageBox MB_OK|MB_ICONSTOP "MURTimeline needs a 64-bit Windows." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

; A 64-bit Windows may have no programs of 32 bits; that half then needs no registration.
!macro RunRegister PROGRAM ARGUMENTS
  ${If} ${FileExists} "${PROGRAM}"
    ExecWait '"${PROGRAM}" /s ${ARGUMENTS}' $0
  ${Else}
    StrCpy $0 0
  ${EndIf}
!macroend

!macro Register PROGRAM SERVER
  !insertmacro RunRegister "${PROGRAM}" '"${SERVER}"'
  ${If} $0 <> 0
    MessageBox MB_OK|MB_ICONSTOP "${SERVER} could not be registered." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
!macroend

!macro InstallServer WIDTH FOLDER PROGRAM
  SetOutPath "$INSTDIR\${WIDTH}"
  File "${FOLDER}/MURTimeline.ocx"
  File "${FOLDER}/MURTimeline.manifest"
  !insertmacro Register "${PROGRAM}" "$INSTDIR\${WIDTH}\MURTimeline.ocx"
!macroend

!macro RemoveServer WIDTH PROGRAM
  !insertmacro RunRegister "${PROGRAM}" '/u "$INSTDIR\${WIDTH}\MURTimeline.ocx"'
  Delete "$INSTDIR\${WIDTH}\MURTimeline.ocx"
  Delete "$INSTDIR\${WIDTH}\MURTimeline.manifest"
  RMDir "$INSTDIR\${WIDTH}"
!macroend

Section
  SetShellVarContext all
  SetRegView 64
  ${DisableX64FSRedirection}
  !insertmacro InstallServer x64 "${X64}" "${REGISTER64}"
  !ifdef X86
    !insertmacro InstallServer x86 "${X86}" "${REGISTER32}"
  !endif

  SetOutPath "$INSTDIR\include"
  File "${X64}/../murtimeline/com/generated/murtimeline_contract.h"
  File "${SOURCES}/murtimeline/com/murtimeline.idl"
  SetOutPath "$INSTDIR\examples"
  File "${SOURCES}/examples/vbscript/timeline.vbs"
  File "${SOURCES}/examples/jscript/timeline.js"
  File "/oname=early_bound.cpp" "${SOURCES}/examples/cpp_early_bound/main.cpp"
  File "/oname=container.cpp" "${SOURCES}/examples/cpp_container/main.cpp"
  File "${SOURCES}/examples/free_pascal/timeline.pas"
  SetOutPath "$INSTDIR"
  File "${SOURCES}/LICENSE"
  File "${SOURCES}/README.md"
  File "${SOURCES}/CHANGELOG.md"

  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "MURTimeline"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL}" "NoRepair" 1
SectionEnd

; Takes away what it brought and nothing else.
Section Uninstall
  SetShellVarContext all
  SetRegView 64
  ${DisableX64FSRedirection}
  !ifdef X86
    !insertmacro RemoveServer x86 "${REGISTER32}"
  !endif
  !insertmacro RemoveServer x64 "${REGISTER64}"
  Delete "$INSTDIR\include\murtimeline_contract.h"
  Delete "$INSTDIR\include\murtimeline.idl"
  RMDir "$INSTDIR\include"
  Delete "$INSTDIR\examples\timeline.vbs"
  Delete "$INSTDIR\examples\timeline.js"
  Delete "$INSTDIR\examples\early_bound.cpp"
  Delete "$INSTDIR\examples\container.cpp"
  Delete "$INSTDIR\examples\timeline.pas"
  RMDir "$INSTDIR\examples"
  Delete "$INSTDIR\LICENSE"
  Delete "$INSTDIR\README.md"
  Delete "$INSTDIR\CHANGELOG.md"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${UNINSTALL}"
SectionEnd
