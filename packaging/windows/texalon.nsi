; The installer of TEXALON for Windows, in Spanish. Made by scripts/instalador-windows.sh with
; makensis, from the folder that `cmake --install build-windows` lays out:
;
;   makensis -DORIGEN=<carpeta instalada> -DVERSION=1.0 -DTAMANO=<KB> -DSALIDA=<instalador.exe>
;            -DARCHIVOS=<lista de borrado.nsh> texalon.nsi
;
; It installs into Program Files\VELMORA\TEXALON, with shortcuts in the Start menu, the two project
; file types opened by the program, and an entry in the list of installed programs. /S installs
; (and, given to the uninstaller, uninstalls) without a window. The uninstaller removes what was
; installed, file by file from the list that the build wrote, and nothing else: a project that
; the user saved anywhere, even in the program's folder, stays.

; A 64-bit installer: the program is 64-bit, and Wine without its 32-bit part runs it too.
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel admin

!include "MUI2.nsh"
!include "x64.nsh"

!define PRODUCTO "TEXALON"
!define FABRICANTE "VELMORA"
!define CLAVE_DESINSTALAR "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCTO}"
!define CLASE_FLEXION "VELMORA.TEXALON.Flexion"
!define CLASE_CONFINAMIENTO "VELMORA.TEXALON.Confinamiento"

Name "${PRODUCTO} ${VERSION}"
OutFile "${SALIDA}"
InstallDir "$PROGRAMFILES64\${FABRICANTE}\${PRODUCTO}"
BrandingText "${FABRICANTE} - ${PRODUCTO}®"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey /LANG=3082 "ProductName" "${PRODUCTO}"
VIAddVersionKey /LANG=3082 "CompanyName" "${FABRICANTE}"
VIAddVersionKey /LANG=3082 "FileDescription" "Instalador de ${PRODUCTO}"
VIAddVersionKey /LANG=3082 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=3082 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=3082 "LegalCopyright" "© ${FABRICANTE}"

!define MUI_ICON "${ORIGEN}\..\iconos\texalon.ico"
!define MUI_UNICON "${ORIGEN}\..\iconos\texalon.ico"
!define MUI_WELCOMEPAGE_TITLE "Instalación de ${PRODUCTO} ${VERSION}"
!define MUI_WELCOMEPAGE_TEXT "Este asistente instala ${PRODUCTO}, el programa de cálculo de refuerzos con tejido de fibra de carbono de ${FABRICANTE}: refuerzo a flexión de secciones rectangulares y en T, confinamiento de pilares y longitud de anclaje.$\r$\n$\r$\nSe instalan el programa, la orden de cálculo por lotes texalon-calculo, la ayuda, el manual de referencia y sus ejemplos.$\r$\n$\r$\nPulse Siguiente para continuar."
!define MUI_FINISHPAGE_RUN "$INSTDIR\texalon.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Abrir ${PRODUCTO}"
!define MUI_ABORTWARNING

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Spanish"

; Shortcuts for every user of the machine, as the program is installed for all of them.
Function .onInit
  SetShellVarContext all
  ${If} ${RunningX64}
    SetRegView 64
  ${Else}
    MessageBox MB_ICONSTOP "${PRODUCTO} necesita una versión de Windows de 64 bits."
    Abort
  ${EndIf}
FunctionEnd

Function un.onInit
  SetShellVarContext all
  SetRegView 64
FunctionEnd

; tipo_de_proyecto EXTENSIÓN CLASE DESCRIPCIÓN ICONO: a project file type, opened by the program
; on a double click; its icon is one of the program's own.
!macro tipo_de_proyecto extension clase descripcion icono
  WriteRegStr HKLM "Software\Classes\${extension}" "" "${clase}"
  WriteRegStr HKLM "Software\Classes\${clase}" "" "${descripcion}"
  WriteRegStr HKLM "Software\Classes\${clase}\DefaultIcon" "" "$INSTDIR\texalon.exe,${icono}"
  WriteRegStr HKLM "Software\Classes\${clase}\shell\open\command" "" '"$INSTDIR\texalon.exe" "%1"'
!macroend

Section "TEXALON"
  SetOutPath "$INSTDIR"
  File /r "${ORIGEN}\*.*"

  WriteUninstaller "$INSTDIR\desinstalar.exe"

  CreateDirectory "$SMPROGRAMS\${PRODUCTO}"
  CreateShortcut "$SMPROGRAMS\${PRODUCTO}\${PRODUCTO}.lnk" "$INSTDIR\texalon.exe"
  CreateShortcut "$SMPROGRAMS\${PRODUCTO}\Manual de referencia.lnk" "$INSTDIR\guia_texalon.pdf"
  CreateShortcut "$SMPROGRAMS\${PRODUCTO}\Desinstalar ${PRODUCTO}.lnk" "$INSTDIR\desinstalar.exe"

  !insertmacro tipo_de_proyecto ".vmf" "${CLASE_FLEXION}" "Proyecto de refuerzo a flexión de TEXALON" "-2"
  !insertmacro tipo_de_proyecto ".vmc" "${CLASE_CONFINAMIENTO}" "Proyecto de refuerzo a confinamiento de TEXALON" "-3"
  ; Explorer draws the new icons at once.
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'

  WriteRegStr HKLM "${CLAVE_DESINSTALAR}" "DisplayName" "${PRODUCTO}"
  WriteRegStr HKLM "${CLAVE_DESINSTALAR}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${CLAVE_DESINSTALAR}" "Publisher" "${FABRICANTE}"
  WriteRegStr HKLM "${CLAVE_DESINSTALAR}" "DisplayIcon" "$INSTDIR\texalon.exe,0"
  WriteRegStr HKLM "${CLAVE_DESINSTALAR}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${CLAVE_DESINSTALAR}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
  WriteRegStr HKLM "${CLAVE_DESINSTALAR}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
  WriteRegDWORD HKLM "${CLAVE_DESINSTALAR}" "EstimatedSize" ${TAMANO}
  WriteRegDWORD HKLM "${CLAVE_DESINSTALAR}" "NoModify" 1
  WriteRegDWORD HKLM "${CLAVE_DESINSTALAR}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  ; The files and folders that the installer laid, as the build listed them; a folder is removed
  ; only when nothing else is left in it.
  !include "${ARCHIVOS}"
  Delete "$INSTDIR\desinstalar.exe"
  RMDir "$INSTDIR"
  RMDir "$PROGRAMFILES64\${FABRICANTE}"

  Delete "$SMPROGRAMS\${PRODUCTO}\${PRODUCTO}.lnk"
  Delete "$SMPROGRAMS\${PRODUCTO}\Manual de referencia.lnk"
  Delete "$SMPROGRAMS\${PRODUCTO}\Desinstalar ${PRODUCTO}.lnk"
  RMDir "$SMPROGRAMS\${PRODUCTO}"

  ; The file types, only while they are still this program's.
  ReadRegStr $0 HKLM "Software\Classes\.vmf" ""
  StrCmp $0 "${CLASE_FLEXION}" 0 +2
    DeleteRegKey HKLM "Software\Classes\.vmf"
  ReadRegStr $0 HKLM "Software\Classes\.vmc" ""
  StrCmp $0 "${CLASE_CONFINAMIENTO}" 0 +2
    DeleteRegKey HKLM "Software\Classes\.vmc"
  DeleteRegKey HKLM "Software\Classes\${CLASE_FLEXION}"
  DeleteRegKey HKLM "Software\Classes\${CLASE_CONFINAMIENTO}"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'

  DeleteRegKey HKLM "${CLAVE_DESINSTALAR}"
SectionEnd
