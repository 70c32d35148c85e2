# The Windows installation: everything in one folder, as the installer lays it out in
# Program Files\VELMORA\TEXALON (packaging/windows/texalon.nsi):
#
#   texalon.exe, texalon-calculo.exe     the program and the batch command
#   ayuda\, ejemplos\, guia_texalon.pdf  the help pages, the guide's examples, the guide
#   Qt6*.dll, the MinGW runtime's DLLs   what the programs load (TEXALON_DLLS_QT below)
#   plugins\<kind>\*.dll, qt.conf        Qt's plugins, found through qt.conf
#   translations\qtbase_es.qm            Qt's own texts in Spanish
#   fuentes\*.ttf                        Liberation Sans, for a system without Arial
#
# The program finds its help and its guide beside itself, as on Linux in a build tree.
#
#   cmake --install build-windows --prefix <carpeta>

set(TEXALON_QT_WINDOWS_BIN ${TEXALON_QT_WINDOWS}/bin)
# What windeployqt would copy, which does not run here: the Qt libraries that the two programs
# load and the plugins that Qt loads for them. The CTest test windows_dlls reads the DLLs that
# each of these files imports and fails if one is neither listed nor the system's own.
set(TEXALON_DLLS_QT Qt6Core Qt6Gui Qt6Widgets Qt6PrintSupport Qt6Svg)
set(TEXALON_PLUGINS_QT
  platforms/qwindows        # the Windows desktop
  styles/qwindowsvistastyle # the system's look
  iconengines/qsvgicon      # the SVG icons of the toolbar and the buttons
  imageformats/qsvg         # SVG pictures read as images
)

install(TARGETS texalon texalon-calculo RUNTIME DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/ayuda/ DESTINATION ayuda)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/ejemplos/ DESTINATION ejemplos)
if(TEXALON_GUIA_PDF AND EXISTS ${TEXALON_GUIA_PDF})
  install(FILES ${TEXALON_GUIA_PDF} DESTINATION . RENAME guia_texalon.pdf)
  # Beside the program in the build tree too, where Ayuda → Manual de referencia looks for it.
  add_custom_target(texalon_guia_junto ALL
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${TEXALON_GUIA_PDF} $<TARGET_FILE_DIR:texalon>/guia_texalon.pdf)
endif()

foreach(_dll IN LISTS TEXALON_DLLS_QT)
  install(FILES ${TEXALON_QT_WINDOWS_BIN}/${_dll}.dll DESTINATION .)
endforeach()
install(FILES ${TEXALON_RUNTIME_DLLS} DESTINATION .)
foreach(_plugin IN LISTS TEXALON_PLUGINS_QT)
  cmake_path(GET _plugin PARENT_PATH _carpeta)
  install(FILES ${TEXALON_QT_WINDOWS}/plugins/${_plugin}.dll DESTINATION plugins/${_carpeta})
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/packaging/windows/qt.conf DESTINATION .)
install(FILES ${TEXALON_QT_WINDOWS}/translations/qtbase_es.qm DESTINATION translations)

# Liberation Sans (SIL Open Font License), which measures as Arial.
set(TEXALON_FUENTES_LIBERATION /usr/share/fonts/truetype/liberation)
set(TEXALON_FUENTES
  ${TEXALON_FUENTES_LIBERATION}/LiberationSans-Regular.ttf
  ${TEXALON_FUENTES_LIBERATION}/LiberationSans-Bold.ttf
  ${TEXALON_FUENTES_LIBERATION}/LiberationSans-Italic.ttf
  ${TEXALON_FUENTES_LIBERATION}/LiberationSans-BoldItalic.ttf)
install(FILES ${TEXALON_FUENTES} DESTINATION fuentes)
install(FILES /usr/share/doc/fonts-liberation/copyright DESTINATION fuentes RENAME LICENCIA.txt)
# The build's own copy, which the tests under Wine draw with.
file(COPY ${TEXALON_FUENTES} DESTINATION ${CMAKE_BINARY_DIR}/fuentes)
