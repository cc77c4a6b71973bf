# Where things are installed, and what developers get of a library.

set(KAV_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/kavcallmeter)
set(KAV_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/kavcallmeter)
# For catalogues, NAME.qm.
set(KAV_INSTALL_TRANSLATIONDIR ${KAV_INSTALL_DATADIR}/translations)
# From where the program lies, so that the tree can be moved.
cmake_path(ABSOLUTE_PATH KAV_INSTALL_TRANSLATIONDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}
    OUTPUT_VARIABLE KAV_TRANSLATIONS_FROM_PROGRAMS)
file(RELATIVE_PATH KAV_TRANSLATIONS_FROM_PROGRAMS ${CMAKE_INSTALL_FULL_BINDIR} ${KAV_TRANSLATIONS_FROM_PROGRAMS})
# Beside the library that loads them (backendDirectory() in Handset.cpp).
set(KAV_INSTALL_BACKENDDIR ${CMAKE_INSTALL_LIBDIR}/kavcallmeter/backends)
set(KAV_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/kavcallmeter)

# kav_install_library(TARGET NAME DESCRIPTION TEXT [HEADERS FILE ...] [PRIVATE_HEADERS FILE ...])
# The library as kavcallmeter::NAME of the CMake package, with a pkg-config file under its own name and with its
# headers in the folder NAME, as they are included: HEADERS, else all of its folder but PRIVATE_HEADERS.
function(kav_install_library target name)
    cmake_parse_arguments(ARG "" "DESCRIPTION" "HEADERS;PRIVATE_HEADERS" ${ARGN})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${KAV_INSTALL_INCLUDEDIR}>)
    install(TARGETS ${target} EXPORT kavcallmeterTargets)
    if(NOT ARG_HEADERS)
        file(GLOB ARG_HEADERS CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.h)
        list(REMOVE_ITEM ARG_HEADERS ${ARG_PRIVATE_HEADERS} "")
    endif()
    install(FILES ${ARG_HEADERS} DESTINATION ${KAV_INSTALL_INCLUDEDIR}/${name})
    kav_install_pkg_config(${target} "${ARG_DESCRIPTION}")
endfunction()

# What a library's headers use is what it is linked with in public: modules of Qt, and libraries of ours.
function(kav_install_pkg_config target description)
    get_target_property(KAV_LINK_NAME ${target} OUTPUT_NAME)
    get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
    set(KAV_REQUIRES)
    foreach(link ${links})
        if(link MATCHES "^Qt6::(.+)$")
            list(APPEND KAV_REQUIRES Qt6${CMAKE_MATCH_1})
        elseif(link MATCHES "^kav_")
            get_target_property(required ${link} OUTPUT_NAME)
            list(APPEND KAV_REQUIRES ${required})
        endif()
    endforeach()
    list(JOIN KAV_REQUIRES ", " KAV_REQUIRES)
    set(KAV_DESCRIPTION "${description}")
    # From where the file lies, so that the tree can be moved.
    file(RELATIVE_PATH KAV_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/packaging/library.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${KAV_LINK_NAME}.pc
        @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${KAV_LINK_NAME}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# kav_install_backend(TARGET)
# A library with a handset that the factory loads by its name when it is asked for.
function(kav_install_backend target)
    install(TARGETS ${target} LIBRARY DESTINATION ${KAV_INSTALL_BACKENDDIR})
    # Where libkavhandset is from there.
    set_property(TARGET ${target} APPEND PROPERTY INSTALL_RPATH "$ORIGIN/../..")
endfunction()
