# The installer for Windows. scripts/windows.sh gives STAGE (the folder of files), LISTS (the folder of the two generated
# lists of them), VERSION, ADDRESS (the maker's home page) and OUTPUT.
#
# Silent: orvanta-VERSION-setup.exe /S [/CurrentUser|/AllUsers] [/VERB=0] [/D=FOLDER]

Target amd64-unicode
SetCompressor /SOLID lzma

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvanta"
!define VERB "Software\Classes\*\shell\Orvanta"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_MINWIN 0x601
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "Orvanta"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh

Name "Orvanta"
OutFile "${OUTPUT}"
BrandingText " "
ManifestSupportedOS all
ManifestDPIAware true
VIProductVersion "${VERSION}"
VIAddVersionKey "ProductName" "Orvanta"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Kelvory"
VIAddVersionKey "FileDescription" "Orvanta Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Copyright (c) 2026 Kelvory"

!define MUI_ICON "${__FILEDIR__}/orvanta.ico"
!define MUI_UNICON "${__FILEDIR__}/orvanta.ico"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\orv.exe"
!insertmacro MUI_PAGE_LICENSE "${STAGE}/license.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

# A running program cannot be replaced or removed.
!macro waitUntilClosed un
Function ${un}waitUntilClosed
    ${DoWhile} ${FileExists} "$INSTDIR\orv.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\orv.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            Return
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Orvanta is running. Close it, then try again." /SD IDCANCEL IDRETRY +3
            SetErrorLevel 2
            Quit
    ${Loop}
FunctionEnd
!macroend
!insertmacro waitUntilClosed ""
!insertmacro waitUntilClosed "un."

# The verb of an earlier installation, if it starts the program of this folder.
!macro removeVerb
    ReadRegStr $0 SHCTX "${VERB}\command" ""
    ${If} $0 == '"$INSTDIR\orv.exe" %1'
        DeleteRegKey SHCTX "${VERB}"
    ${EndIf}
!macroend

Section "Orvanta" sectionProgram
    SectionIn RO
    Call waitUntilClosed
    !include "${LISTS}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortCut "$SMPROGRAMS\Orvanta.lnk" "$INSTDIR\orv.exe"

    WriteRegStr SHCTX "${KEY}" "DisplayName" "Orvanta"
    WriteRegStr SHCTX "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${KEY}" "DisplayIcon" "$INSTDIR\orv.exe"
    WriteRegStr SHCTX "${KEY}" "Publisher" "Kelvory"
    WriteRegStr SHCTX "${KEY}" "URLInfoAbout" "${ADDRESS}"
    WriteRegStr SHCTX "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${KEY}" "NoRepair" 1
    SectionGetSize ${sectionProgram} $0
    WriteRegDWORD SHCTX "${KEY}" "EstimatedSize" $0
    !insertmacro removeVerb
SectionEnd

Section "Check with Orvanta in the menu of every file" sectionVerb
    WriteRegStr SHCTX "${VERB}" "" "Check with Orvanta"
    WriteRegStr SHCTX "${VERB}" "Icon" "$INSTDIR\orv.exe"
    # No quotes around %1: the program takes a path as it stands, blanks included, and a quoted one is no path.
    WriteRegStr SHCTX "${VERB}\command" "" '"$INSTDIR\orv.exe" %1'
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
!insertmacro MUI_DESCRIPTION_TEXT ${sectionProgram} "The program, its languages, and its entry in the start menu."
!insertmacro MUI_DESCRIPTION_TEXT ${sectionVerb} "A right click on a file offers to open it in Orvanta."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Section "Uninstall"
    Call un.waitUntilClosed
    !include "${LISTS}/uninstall.nsh"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR" # goes only if nothing of the user's is in it
    Delete "$SMPROGRAMS\Orvanta.lnk"
    !insertmacro removeVerb
    DeleteRegKey SHCTX "${KEY}"
SectionEnd

Function .onInit
    StrCpy $2 $INSTDIR # of /D, if that was given
    !insertmacro MULTIUSER_INIT
    ${If} $2 != ""
        StrCpy $INSTDIR $2
    ${EndIf}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/VERB=" $1
    ${If} $1 == "0"
        SectionSetFlags ${sectionVerb} 0
    ${EndIf}
FunctionEnd

Function un.onInit
    !insertmacro MULTIUSER_UNINIT
FunctionEnd
