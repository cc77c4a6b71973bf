# What every target of the project has in common, and the one way to make a shared library.

add_library(kav_options INTERFACE)
target_compile_features(kav_options INTERFACE cxx_std_20)
target_compile_options(kav_options INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor $<$<BOOL:${KAV_WERROR}>:-Werror> -Werror=switch)
target_compile_definitions(kav_options INTERFACE QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Files and inodes beyond 32 bits, and times after the year 2038.
    target_compile_definitions(kav_options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()
# Calls into the platform libraries must stay replaceable at load time: no symbolic binding, no inlining across
# an exported entry point.
target_compile_options(kav_options INTERFACE -fsemantic-interposition)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Where a file reads much of Qt, GCC spends a tenth of its time in looking for memory to use again.
    target_compile_options(kav_options INTERFACE "SHELL:--param ggc-min-expand=1000 --param ggc-min-heapsize=1000000")
endif()
if(KAV_SANITIZE)
    target_compile_options(kav_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
    target_link_options(kav_options INTERFACE -fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # The plug-in's functions are found by name, and called with the base class of the screens that they name.
        target_compile_options(kav_options INTERFACE -fno-sanitize=function)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # With the sanitizers on, GCC 12 warns about code of its own library and of Qt's headers that is sound.
        target_compile_options(kav_options INTERFACE -Wno-maybe-uninitialized -Wno-stringop-overflow)
    endif()
endif()

if(KAV_FUZZ)
    target_compile_options(kav_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(kav_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(KAV_COVERAGE)
    target_link_options(kav_options INTERFACE -fprofile-instr-generate)
endif()

# The tests' own code waits longer for the compiler than it ever runs.
add_library(kav_test_options INTERFACE)
target_link_libraries(kav_test_options INTERFACE kav_options)
target_compile_options(kav_test_options INTERFACE -O0)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # A file may be larger there than an array; those of the tests are small.
    target_compile_options(kav_test_options INTERFACE -Wno-error=conversion)
endif()
# Nor does it need what the default linker takes five times as long for. (Clang's linker is in its preset.)
find_program(KAV_GOLD ld.gold)
if(KAV_GOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_link_options(kav_test_options INTERFACE -fuse-ld=gold)
endif()

# Programs are loaded wherever the system puts them.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

# kav_harden(TARGET)
# What a release carries against errors that are still in it: checked copies and bounds, guarded stacks and jumps,
# tables of addresses that are final before the first line of ours runs. Nothing here binds a name within its
# library, so calls into the platform stay replaceable. Optimised builds only: checked copies need the optimiser, and
# the sanitizers check more.
function(kav_harden target)
    if(KAV_COVERAGE)
        target_compile_options(${target} PRIVATE -fprofile-instr-generate -fcoverage-mapping)
    endif()
    if(KAV_SANITIZE)
        return()
    endif()
    set(optimised "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
    target_compile_definitions(${target} PRIVATE $<${optimised}:_GLIBCXX_ASSERTIONS>)
    target_compile_options(${target} PRIVATE
        $<${optimised}:-fstack-protector-strong> "$<${optimised}:SHELL:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3>")
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|amd64|AMD64|i[3-6]86)$")
        target_compile_options(${target} PRIVATE $<${optimised}:-fcf-protection=full>)
    elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
        target_compile_options(${target} PRIVATE $<${optimised}:-mbranch-protection=standard>)
    endif()
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY" OR type STREQUAL "EXECUTABLE")
        target_link_options(${target} PRIVATE $<${optimised}:-Wl,-z,relro,-z,now,-z,noexecstack>)
        set_property(GLOBAL APPEND PROPERTY KAV_HARDENED_PRODUCTS ${target})
    endif()
    if(type STREQUAL "EXECUTABLE" OR type STREQUAL "STATIC_LIBRARY")
        set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    endif()
endfunction()

# kav_precompile(TARGET Core|Widgets|Test)
# The headers of Qt and the standard library that nearly every file of the target reads are compiled once for all
# targets of a kind. A file still includes whatever it uses: clang-tidy reads the product without these, and so does
# every compiler with CMAKE_DISABLE_PRECOMPILE_HEADERS.
# Core: product code that links Qt6::Core, and no widgets. Widgets: product code that links Qt6::Widgets.
# Test: what links kav_test_options, Qt6::Widgets and Qt6::Test.
function(kav_precompile target kind)
    target_precompile_headers(${target} REUSE_FROM kav_precompiled_${kind})
endfunction()

function(kav_add_precompiled kind)
    cmake_parse_arguments(ARG "" "" "LIBS;HEADERS" ${ARGN})
    set(carrier kav_precompiled_${kind})
    file(WRITE ${PROJECT_BINARY_DIR}/${carrier}.cpp "// Carries the precompiled headers of the kind ${kind}.\n")
    add_library(${carrier} OBJECT ${PROJECT_BINARY_DIR}/${carrier}.cpp)
    set_target_properties(${carrier} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_link_libraries(${carrier} PRIVATE ${ARG_LIBS})
    target_precompile_headers(${carrier} PRIVATE ${ARG_HEADERS})
endfunction()

set(core_headers
    <QtCore/QByteArray> <QtCore/QCoreApplication> <QtCore/QDateTime> <QtCore/QFile> <QtCore/QList> <QtCore/QObject>
    <QtCore/QString> <QtCore/QStringList> <QtCore/QTimer> <algorithm> <functional> <memory> <optional>)
set(widgets_headers
    ${core_headers} <QtGui/QPainter> <QtWidgets/QApplication> <QtWidgets/QWidget>)
kav_add_precompiled(Core LIBS kav_options Qt6::Core HEADERS ${core_headers})
kav_harden(kav_precompiled_Core)
kav_add_precompiled(Widgets LIBS kav_options Qt6::Widgets HEADERS ${widgets_headers})
kav_harden(kav_precompiled_Widgets)

# kav_compile_together(TARGET)
# Under KAV_UNITY the files of the target are compiled some at a time as one, which takes a third of the time: what a
# file declares for itself in an anonymous namespace must not have the name of something in another file of the target.
function(kav_compile_together target)
    if(NOT KAV_UNITY)
        return()
    endif()
    # What is said of headers is not meant for the files, nor that a local name is one of another file.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        set(besides_the_point "-Wsubobject-linkage")
    else()
        set(besides_the_point "-Wshadow")
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8
        UNITY_BUILD_CODE_BEFORE_INCLUDE "#pragma GCC diagnostic ignored \"${besides_the_point}\"")
endfunction()

# Has all made that a tool writes, for who reads the sources and builds nothing (scripts/check-clang).
add_custom_target(kav_generated)

# kav_moc(TARGET)
# Objects of Qt in the target's headers. Under KAV_UNITY moc is given the headers that say so and nothing of what they
# include, which takes a tenth of the time and tells it the same, but for types of Qt D-Bus; else CMake's own way does it.
function(kav_moc target)
    if(NOT KAV_UNITY)
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
        return()
    endif()
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen)
    file(MAKE_DIRECTORY ${folder})
    set(all "// All that moc makes for ${target}.\n")
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.h$")
    foreach(header ${sources})
        cmake_path(ABSOLUTE_PATH header BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        get_source_file_property(is_made ${header} GENERATED)
        if(is_made)
            continue()
        endif()
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
        file(STRINGS ${header} said REGEX "^ *(Q_OBJECT|Q_GADGET|Q_NAMESPACE)" LIMIT_COUNT 1)
        if(said)
            cmake_path(GET header STEM name)
            set(made ${folder}/moc_${name}.cpp)
            add_custom_command(OUTPUT ${made} DEPENDS ${header}
                COMMAND Qt6::moc ${header} -o ${made} VERBATIM)
            set_source_files_properties(${made} PROPERTIES HEADER_FILE_ONLY ON)
            target_sources(${target} PRIVATE ${made})
            string(APPEND all "#include \"${made}\"\n")
            list(APPEND made_files ${made})
        endif()
    endforeach()
    if(made_files)
        file(CONFIGURE OUTPUT ${folder}/mocs_compilation.cpp CONTENT "${all}" @ONLY)
        target_sources(${target} PRIVATE ${folder}/mocs_compilation.cpp)
        add_custom_target(${target}_mocs DEPENDS ${made_files})
        add_dependencies(kav_generated ${target}_mocs)
    endif()
endfunction()

# kav_generated(NAME FILE ...)
# Files of the folder that a tool writes: it keeps no rules of ours.
function(kav_generated name)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -w SKIP_UNITY_BUILD_INCLUSION ON)
    add_custom_target(kav_generated_${name} DEPENDS ${ARGN})
    add_dependencies(kav_generated kav_generated_${name})
endfunction()

# kav_shared_library(TARGET [DBUS] [OUTPUT NAME] [VERSION V SOVERSION S] SOURCES ...)
# A shared object under its own name and soname. DBUS: moc has to know the types of Qt D-Bus. It is installed by
# kav_install_library or kav_install_backend.
function(kav_shared_library target)
    cmake_parse_arguments(ARG "DBUS" "OUTPUT;VERSION;SOVERSION" "SOURCES" ${ARGN})
    add_library(${target} SHARED ${ARG_SOURCES})
    if(ARG_OUTPUT)
        set_target_properties(${target} PROPERTIES OUTPUT_NAME ${ARG_OUTPUT})
    endif()
    if(ARG_VERSION)
        set_target_properties(${target} PROPERTIES VERSION ${ARG_VERSION} SOVERSION ${ARG_SOVERSION})
    endif()
    target_link_libraries(${target} PRIVATE kav_options)
    if(ARG_DBUS)
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
    else()
        kav_moc(${target})
    endif()
    kav_harden(${target})
    # In every build: what a library calls that another lacks is found when it is loaded.
    target_link_options(${target} PRIVATE -Wl,--no-undefined-version -Wl,-z,now)
    if(NOT KAV_SANITIZE)
        target_link_options(${target} PRIVATE -Wl,-z,defs)
    endif()
endfunction()
