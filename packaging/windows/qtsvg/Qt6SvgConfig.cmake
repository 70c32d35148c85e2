# Qt6::Svg of the Windows build (packaging/windows/qtsvg), for find_package(Qt6 COMPONENTS Svg).
include(CMakeFindDependencyMacro)
find_dependency(Qt6Gui)

get_filename_component(_qt6svg_prefijo "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
if(NOT TARGET Qt6::Svg)
  add_library(Qt6::Svg SHARED IMPORTED)
  set_target_properties(Qt6::Svg PROPERTIES
    IMPORTED_LOCATION "${_qt6svg_prefijo}/bin/Qt6Svg.dll"
    IMPORTED_IMPLIB "${_qt6svg_prefijo}/lib/libQt6Svg.a"
    INTERFACE_INCLUDE_DIRECTORIES "${_qt6svg_prefijo}/include;${_qt6svg_prefijo}/include/QtSvg"
    INTERFACE_LINK_LIBRARIES Qt6::Gui)
endif()
set(Qt6Svg_FOUND TRUE)
set(Qt6Svg_VERSION 6.4.2)
