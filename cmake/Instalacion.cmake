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
#   share/metainfo/<id>.metainfo.xml      what software centres show, <id> from TEXALON_WEB
#   share/doc/texalon/copyright, changelog.gz
#   share/man/man1/texalon.1.gz, texalon-calculo.1.gz   the manual pages, when the build makes
#                                                        them (with the tools)
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
# The whole relocation table read-only once the program has started (full RELRO), as Debian
# builds its own programs; ld makes the rest of it read-only by itself.
foreach(_programa texalon texalon-calculo)
  target_link_options(${_programa} PRIVATE LINKER:-z,relro LINKER:-z,now)
endforeach()

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

# -- Software centres and the package's documents --------------------------------------------
# The id of the component in reverse-DNS form under the maker's web domain (www.velmora.example
# gives example.velmora.texalon), the form AppStream asks for; a hyphen, which AppStream
# discourages in an id, becomes an underscore.
string(REGEX REPLACE "^([a-zA-Z]+://)?(www\\.)?([^/:]+).*$" "\\3" _dominio "${TEXALON_WEB}")
string(TOLOWER "${_dominio}" _dominio)
string(REPLACE "-" "_" _dominio "${_dominio}")
string(REPLACE "." ";" _partes_dominio "${_dominio}")
list(REVERSE _partes_dominio)
list(JOIN _partes_dominio "." TEXALON_ID_APPSTREAM)
set(TEXALON_ID_APPSTREAM "${TEXALON_ID_APPSTREAM}.texalon")
# The screenshots are the pictures of docs/, published on the maker's site.
set(TEXALON_CAPTURAS "https://${TEXALON_WEB}/texalon/capturas")

# The Debian changelog is the one place of the version's date: the package's changelog, the
# manual pages and the release in the AppStream data all take it from its last entry, which
# must be the entry of the project's version.
set(_changelog "${PROJECT_SOURCE_DIR}/packaging/changelog.in")
file(STRINGS "${_changelog}" _entrada LIMIT_COUNT 1)
if(NOT _entrada MATCHES "^texalon \\(([^)]+)\\) ")
  message(FATAL_ERROR "packaging/changelog.in no empieza por una entrada «texalon (VERSIÓN) ...».")
endif()
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "La última entrada de packaging/changelog.in es de la versión ${CMAKE_MATCH_1}, "
                      "no de la versión ${PROJECT_VERSION} del proyecto: escriba su entrada.")
endif()
file(STRINGS "${_changelog}" _firmas REGEX "^ -- ")
list(GET _firmas 0 _firma)
if(NOT _firma MATCHES "  (([A-Z][a-z][a-z]), ([0-9][0-9]?) ([A-Z][a-z][a-z]) ([0-9][0-9][0-9][0-9]) [0-9:]+ [-+][0-9]+)$")
  message(FATAL_ERROR "La firma de la última entrada de packaging/changelog.in no lleva una fecha "
                      "como «Wed, 25 Nov 2026 12:00:00 +0000»: «${_firma}»")
endif()
set(TEXALON_FECHA_VERSION "${CMAKE_MATCH_1}")
set(_dia "${CMAKE_MATCH_3}")
set(_ano "${CMAKE_MATCH_5}")
set(_months Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec)
set(_meses enero febrero marzo abril mayo junio julio agosto septiembre octubre noviembre diciembre)
list(FIND _months "${CMAKE_MATCH_4}" _mes)
if(_mes LESS 0)
  message(FATAL_ERROR "Mes «${CMAKE_MATCH_4}» no reconocido en la fecha de packaging/changelog.in.")
endif()
list(GET _meses ${_mes} _nombre_mes)
math(EXPR _mes "${_mes} + 1")
string(LENGTH "${_dia}" _largo)
if(_largo EQUAL 1)
  set(_dia "0${_dia}")
endif()
if(_mes LESS 10)
  set(_mes "0${_mes}")
endif()
# 2026-11-25 for AppStream, "noviembre 2026" for the manual pages (as help2man writes it).
set(TEXALON_FECHA_ISO "${_ano}-${_mes}-${_dia}")
set(TEXALON_FECHA_MANUAL "${_nombre_mes} ${_ano}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${_changelog}")

set(_paquete "${PROJECT_BINARY_DIR}/paquete")
configure_file(${PROJECT_SOURCE_DIR}/packaging/texalon.metainfo.xml.in
               ${_paquete}/${TEXALON_ID_APPSTREAM}.metainfo.xml @ONLY)
install(FILES ${_paquete}/${TEXALON_ID_APPSTREAM}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The copyright file, in Debian's machine-readable form, and the changelog, compressed.
set(TEXALON_DOCUMENTOS_INSTALADOS ${CMAKE_INSTALL_DATADIR}/doc/texalon)
configure_file(${PROJECT_SOURCE_DIR}/packaging/copyright.in ${_paquete}/copyright @ONLY)
configure_file(${_changelog} ${_paquete}/changelog @ONLY)
add_custom_command(
  OUTPUT ${_paquete}/changelog.gz
  COMMAND ${CMAKE_COMMAND} -DENTRADA=${_paquete}/changelog -DSALIDA=${_paquete}/changelog.gz
          -P ${PROJECT_SOURCE_DIR}/cmake/Comprime.cmake
  DEPENDS ${_paquete}/changelog ${PROJECT_SOURCE_DIR}/cmake/Comprime.cmake
  COMMENT "changelog.gz del paquete"
  VERBATIM)
add_custom_target(texalon_changelog ALL DEPENDS ${_paquete}/changelog.gz)
install(FILES ${_paquete}/copyright ${_paquete}/changelog.gz DESTINATION ${TEXALON_DOCUMENTOS_INSTALADOS})
# The one lintian note that is overridden, with its reason written in the file.
install(FILES ${PROJECT_SOURCE_DIR}/packaging/texalon.lintian-overrides
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME texalon)

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

# -- The manual pages ---------------------------------------------------------------------------
# texalon(1) from its own page; texalon-calculo(1) by help2man from the command's --help, so
# that it follows every change of the help, and from the include file of its other sections.
# Both in Spanish, dated on the day of the version and compressed.
find_program(TEXALON_HELP2MAN help2man REQUIRED)
execute_process(COMMAND date -u -d "${TEXALON_FECHA_VERSION}" +%s
                OUTPUT_VARIABLE TEXALON_EPOCA_VERSION OUTPUT_STRIP_TRAILING_WHITESPACE
                RESULT_VARIABLE _resultado)
if(NOT _resultado EQUAL 0)
  message(FATAL_ERROR "date no entiende la fecha de packaging/changelog.in: ${TEXALON_FECHA_VERSION}")
endif()
set(_manuales "${_paquete}/man")
configure_file(${PROJECT_SOURCE_DIR}/packaging/man/texalon.1.in ${_manuales}/texalon.1 @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/packaging/man/texalon-calculo.h2m ${_manuales}/texalon-calculo.h2m @ONLY)
add_custom_command(
  OUTPUT ${_manuales}/texalon-calculo.1
  COMMAND ${CMAKE_COMMAND} -DHELP2MAN=${TEXALON_HELP2MAN} -DPROGRAMA=$<TARGET_FILE:texalon-calculo>
          -DENVOLTORIO=${PROJECT_SOURCE_DIR}/packaging/man/ayuda-help2man.sh
          -DINCLUSION=${_manuales}/texalon-calculo.h2m -DVERSION=${PROJECT_VERSION}
          -DEPOCA=${TEXALON_EPOCA_VERSION} -DSALIDA=${_manuales}/texalon-calculo.1
          -P ${PROJECT_SOURCE_DIR}/cmake/PaginaManual.cmake
  DEPENDS texalon-calculo ${_manuales}/texalon-calculo.h2m ${PROJECT_SOURCE_DIR}/packaging/man/ayuda-help2man.sh
          ${PROJECT_SOURCE_DIR}/cmake/PaginaManual.cmake
  COMMENT "Página de manual de texalon-calculo"
  VERBATIM)
set(_paginas)
foreach(_pagina texalon texalon-calculo)
  add_custom_command(
    OUTPUT ${_manuales}/${_pagina}.1.gz
    COMMAND ${CMAKE_COMMAND} -DENTRADA=${_manuales}/${_pagina}.1 -DSALIDA=${_manuales}/${_pagina}.1.gz
            -P ${PROJECT_SOURCE_DIR}/cmake/Comprime.cmake
    DEPENDS ${_manuales}/${_pagina}.1 ${PROJECT_SOURCE_DIR}/cmake/Comprime.cmake
    COMMENT "${_pagina}.1.gz"
    VERBATIM)
  list(APPEND _paginas ${_manuales}/${_pagina}.1.gz)
endforeach()
add_custom_target(texalon_manuales ALL DEPENDS ${_paginas})
install(FILES ${_paginas} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

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
# After the strip, the sections that it leaves and Debian's packages do not carry.
set(CPACK_TEXALON_STRIP "${CMAKE_STRIP}")
set(CPACK_TEXALON_PROGRAMAS texalon texalon-calculo)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/LimpiaBinarios.cmake)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# The values above reach the CPack configuration exactly as written here.
set(CPACK_VERBATIM_VARIABLES ON)
# `make package_source`: the sources alone, without the build folders or packages.
set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_IGNORE_FILES "/\\.git/" "/build[^/]*/" "\\.deb$")
include(CPack)
