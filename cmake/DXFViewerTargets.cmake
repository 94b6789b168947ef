# What every target of the project has in common.

include(CheckCXXCompilerFlag)

set(DXFVIEWER_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
# In a unity build the names of one source are in sight of the next, where a local name may well hide
# them. Builds of single sources look for shadows.
if(CMAKE_UNITY_BUILD)
    list(REMOVE_ITEM DXFVIEWER_WARNINGS -Wshadow)
endif()
# clang++ looks for unused constants by itself, but not in a unity build.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    list(APPEND DXFVIEWER_WARNINGS -Wunused-const-variable)
endif()
# At -O3 g++ believes that there is no room behind the header of Qt 5's arrays, and warns.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    list(APPEND DXFVIEWER_WARNINGS -Wno-stringop-overflow)
endif()

# dxfviewer_target_defaults(TARGET): the language, warnings and sanitizers that all code here is
# built with. All of it is private: a host that links the library inherits nothing of this.
function(dxfviewer_target_defaults target)
    target_compile_features(${target} PRIVATE cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    foreach(flag IN LISTS DXFVIEWER_WARNINGS)
        string(MAKE_C_IDENTIFIER "DXFVIEWER_HAS${flag}" known)
        check_cxx_compiler_flag(${flag} ${known})
        if(${known})
            target_compile_options(${target} PRIVATE ${flag})
        endif()
    endforeach()
    if(DXFVIEWER_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    # Without frame pointers a leak detector cannot reliably follow the calls through Qt's
    # libraries.
    if(DXFVIEWER_SANITIZE)
        list(JOIN DXFVIEWER_SANITIZE "," sanitizers)
        target_compile_options(${target} PRIVATE
            -fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${sanitizers})
    endif()
    # The fuzzers follow what the code does; only their own executables have libFuzzer's main().
    if(DXFVIEWER_BUILD_FUZZERS)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
        target_link_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
endfunction()

# dxfviewer_merge_by_folder(TARGET): a unity build merges the sources of each folder. Their unnamed
# namespaces have no name twice, but may have names in common with those of other folders.
function(dxfviewer_merge_by_folder target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
        cmake_path(GET source PARENT_PATH folder)
        string(MAKE_C_IDENTIFIER "folder/${folder}" group)
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP ${group})
    endforeach()
endfunction()
