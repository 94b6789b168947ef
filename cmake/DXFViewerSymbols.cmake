# What the library exports.

include(CheckLinkerFlag)

# dxfviewer_export_only(TARGET CLASSES NAME... FUNCTIONS SIGNATURE...): exports these classes of
# the global namespace, with what a derived class needs of them, and these functions.
#
# Hidden visibility is not enough: the templates of the standard library, and what dxflib and Qt
# define in their headers, are declared visible, and every copy of them that the compiler makes here
# would be exported as well.
function(dxfviewer_export_only target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "CLASSES;FUNCTIONS")

    set(names "")
    foreach(class IN LISTS arg_CLASSES)
        # A "?" stands for the blank, which a pattern cannot hold. A quoted name could, but some
        # linkers require quoted names to exist, and not every class has a virtual table.
        string(APPEND names
            "        ${class}::*;\n"
            "        typeinfo?for?${class};\n"
            "        typeinfo?name?for?${class};\n"
            "        vtable?for?${class};\n"
            "        *?thunk?to?${class}::*;\n")
    endforeach()
    foreach(function IN LISTS arg_FUNCTIONS)
        string(APPEND names "        \"${function}\";\n")
    endforeach()
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
    file(CONFIGURE OUTPUT "${script}" @ONLY CONTENT
"{
global:
    extern \"C++\" {
@names@    };
local:
    *;
};
")

    check_linker_flag(CXX "LINKER:--version-script=${script}" DXFVIEWER_HAS_VERSION_SCRIPT)
    if(DXFVIEWER_HAS_VERSION_SCRIPT)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
    endif()
endfunction()
