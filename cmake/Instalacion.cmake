# The installation and the Debian package.
#
#   cmake --install build --prefix /opt/texalon      # bin/, share/texalon/, the desktop files
#   cd build && cpack                                # texalon_<versión>_<arquitectura>.deb
#
# Layout, under the prefix (/usr for the package):
#   bin/texalon, bin/texalon-calculo
#   share/texalon/ayuda/...                the help pages
#   share/texalon/ejemplos/...             the projects of the guide's worked examples
#   share/texalon/guia_texalon.pdf         the reference guide, when the build makes it
#   share/applications/texalon.desktop     the menu entry, which opens .vmf and .vmc files
#   share/mime/packages/texalon.xml        the two kinds of project file
#   share/icons/hicolor/<N>x<N>/{apps,mimetypes}/*.png and scalable/.../*.svg
#   share/bash-completion/completions/texalon-calculo
#
# The program looks for its data in ../share/texalon from the folder of its executable, so bin
# and share must stay side by side under the same prefix.
include(GNUInstallDirs)

if(NOT CMAKE_INSTALL_BINDIR STREQUAL "bin" OR NOT CMAKE_INSTALL_DATADIR STREQUAL "share")
  message(FATAL_ERROR "TEXALON busca sus datos en ../share/texalon junto a la carpeta del programa: "
                      "CMAKE_INSTALL_BINDIR debe ser «bin» y CMAKE_INSTALL_DATADIR «share» "
                      "(son «${CMAKE_INSTALL_BINDIR}» y «${CMAKE_INSTALL_DATADIR}»).")
endif()
set(TEXALON_DATOS_INSTALADOS "${CMAKE_INSTALL_DATADIR}/texalon")

# Directories made by the installation are world-readable whatever the umask of who builds.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# -- The programs, the help and the guide ------------------------------------------------------
install(TARGETS texalon texalon-calculo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/ayuda/
        DESTINATION ${TEXALON_DATOS_INSTALADOS}/ayuda)
# The worked examples of the guide, which it tells the user to open from the installation.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/ejemplos/
        DESTINATION ${TEXALON_DATOS_INSTALADOS}/ejemplos)

if(TARGET texalon_guia)
  install(FILES ${TEXALON_GUIA_PDF} DESTINATION ${TEXALON_DATOS_INSTALADOS} RENAME guia_texalon.pdf)
endif()

# -- The desktop: menu entry, project file types, icons ---------------------------------------
install(FILES ${PROJECT_SOURCE_DIR}/packaging/texalon.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/texalon.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)

# -- The shell: completion of the batch command ---------------------------------------------
install(FILES ${PROJECT_SOURCE_DIR}/packaging/texalon-calculo.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME texalon-calculo)

# The PNG icons are drawn from the SVG pictures during the build, by tools/iconos, into
# <build>/iconos/hicolor; the installation copies them from there. A build without the tools
# installs no icons, and makes no package.
if(NOT TEXALON_HERRAMIENTAS)
  return()
endif()
add_subdirectory(${PROJECT_SOURCE_DIR}/tools/iconos ${PROJECT_BINARY_DIR}/tools/iconos)

set(TEXALON_TAMANOS_ICONO 16 22 24 32 48 64 128 256)
set(_iconos_construidos "${PROJECT_BINARY_DIR}/iconos/hicolor")
set(_iconos_png)

# texalon_icono(SVG CONTEXTO NOMBRE): the picture SVG as icon NOMBRE of the context (apps,
# mimetypes) of the hicolor theme, at every size and scalable.
function(texalon_icono svg contexto nombre)
  set(_salidas)
  foreach(_lado IN LISTS TEXALON_TAMANOS_ICONO)
    set(_png "${_iconos_construidos}/${_lado}x${_lado}/${contexto}/${nombre}.png")
    list(APPEND _salidas "${_png}")
    install(FILES "${_png}" DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${_lado}x${_lado}/${contexto})
  endforeach()
  add_custom_command(
    OUTPUT ${_salidas}
    COMMAND texalon-iconos "${svg}" "${_iconos_construidos}/%1x%1/${contexto}/${nombre}.png"
            ${TEXALON_TAMANOS_ICONO}
    DEPENDS texalon-iconos "${svg}"
    COMMENT "Iconos PNG de ${nombre}"
    VERBATIM)
  install(FILES "${svg}" DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/${contexto}
          RENAME ${nombre}.svg)
  set(_iconos_png ${_iconos_png} ${_salidas} PARENT_SCOPE)
endfunction()

texalon_icono(${PROJECT_SOURCE_DIR}/resources/imagenes/aplicacion.svg apps texalon)
texalon_icono(${PROJECT_SOURCE_DIR}/resources/escritorio/proyecto-flexion.svg
              mimetypes application-x-texalon-flexion)
texalon_icono(${PROJECT_SOURCE_DIR}/resources/escritorio/proyecto-confinamiento.svg
              mimetypes application-x-texalon-confinamiento)
add_custom_target(texalon_iconos ALL DEPENDS ${_iconos_png})

# -- The Debian package -----------------------------------------------------------------------
# The desktop's caches (the MIME database, the menu's MIME cache, the icon cache) are brought
# up to date by the dpkg triggers of shared-mime-info, desktop-file-utils and
# hicolor-icon-theme, which watch share/mime/packages, share/applications and
# share/icons/hicolor; the package has no maintainer scripts of its own.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME texalon)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR VELMORA)
# The maker's addresses are the cache variables TEXALON_CORREO and TEXALON_WEB of the root.
set(CPACK_PACKAGE_CONTACT "VELMORA <${TEXALON_CORREO}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "cálculo del refuerzo de hormigón armado con fibra de carbono TEXALON")
# The long description, as dpkg shows it: lines of less than 80 columns, "." between paragraphs.
set(CPACK_PACKAGE_DESCRIPTION
"TEXALON calcula el refuerzo de secciones de hormigón armado mediante laminados
de fibra de carbono adheridos de la familia TEXALON (VELMORA): flexión de
secciones rectangulares y en T, confinamiento de pilares circulares, cuadrados
y rectangulares, y longitud de anclaje. Para cada tipo de laminado y cada
número de capas da lo que resiste la sección reforzada, con su veredicto, sus
gráficos y el dibujo de la sección, guarda el proyecto en un fichero de texto
e imprime el informe.
.
Incluye la orden texalon-calculo, que hace el mismo cálculo sin pantalla sobre
ficheros de proyecto, dibuja los diagramas en SVG e imprime los informes en
PDF.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "VELMORA <${TEXALON_CORREO}>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://${TEXALON_WEB}")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries the programs link, found by dpkg-shlibdeps, plus what the programs read at run
# time, which no library scan sees: Qt's own texts in Spanish, and Liberation Sans, which the
# program asks for as Arial. The plugins that Qt loads come with the libraries the scan finds:
# the screen plugin (xcb) with libqt6gui6, the SVG image and icon plugins with libqt6svg6; naming
# them again here would only write each twice in Depends. The package's test checks that both
# are there.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-liberation")
# The guide, the maker's web site and the mail open in the desktop's own programs.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# The values above reach the CPack configuration exactly as written here.
set(CPACK_VERBATIM_VARIABLES ON)
# `make package_source`: the sources alone, without the build folders or packages.
set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_IGNORE_FILES "/\\.git/" "/build[^/]*/" "\\.deb$")
include(CPack)
