# One home for how everything in this tree is compiled: warnings, Qt's own strictness, sanitizers.

add_library(QTarnKitCompilerSettings INTERFACE)

target_compile_options(QTarnKitCompilerSettings INTERFACE -Wall -Wextra -Wpedantic)
if(QTARNKIT_WARNINGS_AS_ERRORS)
    target_compile_options(QTarnKitCompilerSettings INTERFACE -Werror)
endif()

target_compile_definitions(QTarnKitCompilerSettings INTERFACE
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

# Not $<BOOL:...>: the comma in "address,undefined" would end the expression.
if(QTARNKIT_SANITIZERS)
    add_compile_options(-fsanitize=${QTARNKIT_SANITIZERS} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${QTARNKIT_SANITIZERS})
endif()
