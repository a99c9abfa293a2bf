# Every target of the project links this one: the language level, the warnings and the Qt strictness live here only.
add_library(strict INTERFACE)
target_compile_features(strict INTERFACE cxx_std_20)
target_compile_options(strict INTERFACE -Wall -Wextra -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                                        -Wconversion -Wno-sign-conversion)
target_compile_definitions(
    strict
    INTERFACE QT_NO_CAST_FROM_ASCII
              QT_NO_CAST_TO_ASCII
              QT_NO_CAST_FROM_BYTEARRAY
              QT_NO_URL_CAST_FROM_STRING
              QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
              QT_NO_CONTEXTLESS_CONNECT
              QT_NO_FOREACH
              QT_USE_QSTRINGBUILDER
              QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(DESK_SANITIZE)
    target_compile_options(strict INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                            -fno-omit-frame-pointer)
    target_link_options(strict INTERFACE -fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
        # Clang 14 cannot assemble coroutines with the check of called functions.
        target_compile_options(strict INTERFACE -fno-sanitize=function)
    endif()
endif()
