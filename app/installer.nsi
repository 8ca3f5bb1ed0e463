; The installer: for one user, without asking for rights. CMake (windows_installer.cmake) says what goes in:
;   FILES     the list of what is installed and removed again
;   STAGE     the folder that it is taken from
;   VERSION, KILOBYTES, ICON, OUTPUT, and TARGET, the machine
; Silent: /S, to another place with /D=C:\Some Where (last, without quotes). The uninstaller: /S, and /settings to take
; this user's lists and settings away as well.
Target ${TARGET}
SetCompressor /SOLID lzma
SetDateSave off
ManifestDPIAware true
RequestExecutionLevel user
Name "Lorvane 3D"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Lorvane 3D"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lorvane 3D"
!define SETTINGS "Software\VB and VBA Program Settings\Lorvane 3D"
!define CLASSES "Software\Classes"
!define SETTINGS_CLASS "Lorvane3D.Settings"
!define OWN "Software\Lorvane 3D"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"

VIProductVersion "${FILE_VERSION}"
VIAddVersionKey "ProductName" "Lorvane 3D"
VIAddVersionKey "CompanyName" "The Lorvane 3D authors"
VIAddVersionKey "LegalCopyright" "Copyright (c) 2026 The Lorvane 3D authors. MIT License."
VIAddVersionKey "FileDescription" "Installs Lorvane 3D"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Win\COM.nsh
!include Win\Propkey.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\lorvane3d.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Lorvane 3D"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_PAGE_HEADER_SUBTEXT "Your lists and settings are kept unless you tick them."
!define MUI_COMPONENTSPAGE_TEXT_TOP "Games, scripts and what the launches have written into the games' directories stay."
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Nothing is replaced under a program that runs.
!macro WAIT_UNTIL_CLOSED
    ${DoWhile} ${FileExists} "$INSTDIR\lorvane3d.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\lorvane3d.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            ${ExitDo}
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "Lorvane 3D is running, or its program file cannot be written. End it by File, Exit (F12), from its icon in the tray too, and try again." \
            /SD IDCANCEL IDRETRY again
        SetErrorLevel 2
        Abort "Lorvane 3D is running; nothing was changed."
        again:
    ${Loop}
!macroend

; $R0 becomes the place that the list of programs names for this one, or "" if that is $INSTDIR, in whatever spelling:
; a file that is made here is there, too.
!macro FIND_OTHER_PLACE
    ReadRegStr $R0 HKCU "${ENTRY}" "InstallLocation"
    ${If} $R0 == $INSTDIR
        StrCpy $R0 ""
    ${ElseIf} $R0 != ""
        SetDetailsPrint none
        GetTempFileName $R1 "$INSTDIR"
        ${If} $R1 != ""
            ${GetFileName} $R1 $R2
            ${If} ${FileExists} "$R0\$R2"
                StrCpy $R0 ""
            ${EndIf}
            Delete $R1
        ${EndIf}
        SetDetailsPrint lastused
    ${EndIf}
    ClearErrors
!macroend

; The shortcut's name for the task bar, that of platform/windows/task_bar.h: pinned, it stands for the windows too.
!macro NAME_FOR_TASK_BAR SHORTCUT
    !insertmacro ComHlpr_CreateInProcInstance ${CLSID_ShellLink} ${IID_IShellLink} r0 ""
    ${If} $0 P<> 0
        ${IUnknown::QueryInterface} $0 '("${IID_IPersistFile}",.r1)'
        ${If} $1 P<> 0
            ${IPersistFile::Load} $1 '("${SHORTCUT}", ${STGM_READWRITE})'
            ${IUnknown::QueryInterface} $0 '("${IID_IPropertyStore}",.r2)'
            ${If} $2 P<> 0
                System::Call 'oleaut32::SysAllocString(w "Lorvane.Lorvane3D")p.r3'
                System::Call '*${SYSSTRUCT_PROPERTYKEY}(${PKEY_AppUserModel_ID})p.r4'
                System::Call '*(&i2 ${VT_LPWSTR},&i6,p r3,p)p.r5'
                ${IPropertyStore::SetValue} $2 '($4,$5)'
                System::Call 'oleaut32::SysFreeString(p r3)'
                System::Free $4
                System::Free $5
                ${IPropertyStore::Commit} $2 ""
                ${IUnknown::Release} $2 ""
                ${IPersistFile::Save} $1 '("${SHORTCUT}",1)'
            ${EndIf}
            ${IUnknown::Release} $1 ""
        ${EndIf}
        ${IUnknown::Release} $0 ""
    ${EndIf}
!macroend

!macro TELL_OF_CLASSES
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

; What stood there before Tools, Take Game Links is there again, as launcher/links/class_links.cpp has it. A scheme that
; another program has taken since is left alone.
!macro GIVE_LINKS_BACK SCHEME
    ReadRegStr $0 HKCU "${CLASSES}\${SCHEME}\shell\open\command" ""
    ${If} $0 == '"$INSTDIR\lorvane3d.exe" -- "%1"'
        DeleteRegKey HKCU "${CLASSES}\${SCHEME}"
        System::Call 'advapi32::RegOpenKeyExW(p -2147483647, w "${OWN}\Links\${SCHEME}", i 0, i 0x20019, *p .r1) i .r0'
        ${If} $0 = 0
            System::Call 'advapi32::RegCreateKeyW(p -2147483647, w "${CLASSES}\${SCHEME}", *p .r2) i .r0'
            ${If} $0 = 0
                System::Call 'advapi32::RegCopyTreeW(p r1, p 0, p r2)'
                System::Call 'advapi32::RegCloseKey(p r2)'
            ${EndIf}
            System::Call 'advapi32::RegCloseKey(p r1)'
        ${EndIf}
        DeleteRegKey HKCU "${OWN}\Links\${SCHEME}"
    ${EndIf}
!macroend

Function WaitUntilTheOtherIsClosed
    ${If} $R0 == ""
        Return
    ${EndIf}
    ${DoWhile} ${FileExists} "$R0\lorvane3d.exe"
        ClearErrors
        FileOpen $0 "$R0\lorvane3d.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            ${ExitDo}
        ${EndIf}
        MessageBox MB_ABORTRETRYIGNORE|MB_ICONEXCLAMATION \
            "Lorvane 3D is installed in $R0 so far, and is to be removed there. It is running, or its program file \
cannot be written.$\n$\nClose it and try again, or ignore this to leave it there." \
            /SD IDABORT IDRETRY again IDIGNORE leave
        SetOutPath "$TEMP"
        RMDir "$INSTDIR"
        SetErrorLevel 2
        Abort "Lorvane 3D is running; nothing was changed."
        leave:
        ${ExitDo}
        again:
    ${Loop}
FunctionEnd

; In its own way, silently: settings stay, and the user's files.
Function RemoveTheOther
    ${If} $R0 == ""
    ${OrIfNot} ${FileExists} "$R0\lorvane3d.exe"
        Return
    ${EndIf}
    DetailPrint "Removing Lorvane 3D from $R0"
    ExecWait '"$R0\uninstall.exe" /S _?=$R0'
    ${If} ${FileExists} "$R0\lorvane3d.exe"
        SetErrorLevel 3
        DetailPrint "Lorvane 3D could not be removed from $R0."
        MessageBox MB_OK|MB_ICONEXCLAMATION \
            "Lorvane 3D is installed in $INSTDIR. It could not be removed from $R0, where it was before: \
delete it there yourself, if you need it no more." /SD IDOK
        Return
    ${EndIf}
    ; Started that way, it can't remove itself.
    Delete "$R0\uninstall.exe"
    RMDir "$R0"
FunctionEnd

Section "Lorvane 3D"
    !insertmacro WAIT_UNTIL_CLOSED
    SetOutPath "$INSTDIR"
    !insertmacro FIND_OTHER_PLACE
    Call WaitUntilTheOtherIsClosed
    ClearErrors
    File /r "${STAGE}\*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ${If} ${Errors}
        SetErrorLevel 2
        Abort "Not everything could be written to $INSTDIR."
    ${EndIf}
    ; It takes shortcut and entry away, which are written below.
    Call RemoveTheOther
    CreateShortCut "$SMPROGRAMS\Lorvane 3D.lnk" "$INSTDIR\lorvane3d.exe" "" "" "" SW_SHOWNORMAL "" \
        "Starts the shooters of 1996 to 1999"
    !insertmacro NAME_FOR_TASK_BAR "$SMPROGRAMS\Lorvane 3D.lnk"
    WriteRegStr HKCU "${ENTRY}" "DisplayName" "Lorvane 3D"
    WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" "Publisher" "The Lorvane 3D authors"
    WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\lorvane3d.exe"
    WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" ${KILOBYTES}
    WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
    ; Exported settings: the window asks before it takes them.
    WriteRegStr HKCU "${CLASSES}\${SETTINGS_CLASS}" "" "Lorvane 3D settings"
    WriteRegStr HKCU "${CLASSES}\${SETTINGS_CLASS}\DefaultIcon" "" '"$INSTDIR\lorvane3d.exe",0'
    WriteRegStr HKCU "${CLASSES}\${SETTINGS_CLASS}\shell\open\command" "" '"$INSTDIR\lorvane3d.exe" -- "%1"'
    WriteRegStr HKCU "${CLASSES}\.lv3d" "" "${SETTINGS_CLASS}"
    !insertmacro TELL_OF_CLASSES
SectionEnd

Section "un.Lorvane 3D"
    SectionIn RO
    !insertmacro WAIT_UNTIL_CLOSED
    !insertmacro FIND_OTHER_PLACE
    ; What was installed and nothing else: the directory may hold the user's own files.
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    ; Those of a program in another place are not this one's.
    ${If} $R0 == ""
        Delete "$SMPROGRAMS\Lorvane 3D.lnk"
        Delete "$TEMP\dosbox_lv_666.conf" ; of the last game in DOSBox
        DeleteRegKey HKCU "${ENTRY}"
        ReadRegStr $0 HKCU "${CLASSES}\.lv3d" ""
        ${If} $0 == "${SETTINGS_CLASS}"
            DeleteRegValue HKCU "${CLASSES}\.lv3d" ""
            DeleteRegKey /ifempty HKCU "${CLASSES}\.lv3d"
        ${EndIf}
        DeleteRegKey HKCU "${CLASSES}\${SETTINGS_CLASS}"
        !insertmacro GIVE_LINKS_BACK "qw"
        !insertmacro GIVE_LINKS_BACK "quake"
        !insertmacro GIVE_LINKS_BACK "quake2"
        DeleteRegKey /ifempty HKCU "${OWN}\Links"
        DeleteRegKey /ifempty HKCU "${OWN}"
        !insertmacro TELL_OF_CLASSES
    ${EndIf}
SectionEnd

; With the copies that were made of them, the older versions of scripts and the launchers' pictures; what else lies there
; is not ours.
Section /o "un.My lists and settings" UNSETTINGS
    DeleteRegKey HKCU "${SETTINGS}"
    Delete "$LOCALAPPDATA\lorvane3d\backups\settings *.txt"
    RMDir "$LOCALAPPDATA\lorvane3d\backups"
    Delete "$LOCALAPPDATA\lorvane3d\versions\*.txt"
    Delete "$LOCALAPPDATA\lorvane3d\versions\*.txt.damaged*"
    RMDir "$LOCALAPPDATA\lorvane3d\versions"
    Delete "$LOCALAPPDATA\lorvane3d\launchers\*.ico"
    RMDir "$LOCALAPPDATA\lorvane3d\launchers"
    RMDir "$LOCALAPPDATA\lorvane3d"
SectionEnd

Function un.onInit
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/settings" $1
    ${IfNot} ${Errors}
        SectionSetFlags ${UNSETTINGS} 1
    ${EndIf}
FunctionEnd
