# Everything that our own targets are compiled with. Libraries get it through orvanta_library(), programs by linking
# orvanta_options.

add_library(orvanta_options INTERFACE)
target_include_directories(orvanta_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/generated)
target_compile_definitions(orvanta_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
target_compile_options(orvanta_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wformat=2)
# What is shipped is hardened, and says nothing of where it was built.
target_compile_options(orvanta_options INTERFACE
    -ffile-prefix-map=${CMAKE_BINARY_DIR}=. -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.
    $<$<CONFIG:Release>:-fstack-protector-strong> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
if(WIN32)
    # One file that needs nothing but Windows, without what nobody calls; and the same bytes from the same sources.
    target_compile_options(orvanta_options INTERFACE -ffunction-sections -fdata-sections)
    target_link_options(orvanta_options INTERFACE -static -s -fstack-protector-strong
        -Wl,--gc-sections -Wl,--no-insert-timestamp
        -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
else()
    target_link_options(orvanta_options INTERFACE -Wl,-z,relro -Wl,-z,now)
endif()
if(ORVANTA_WARNINGS_AS_ERRORS)
    target_compile_options(orvanta_options INTERFACE -Werror)
endif()
if(ORVANTA_SANITIZERS)
    target_compile_options(orvanta_options INTERFACE
        -fsanitize=${ORVANTA_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orvanta_options INTERFACE -fsanitize=${ORVANTA_SANITIZERS})
endif()

# orvanta_library(<folder> SOURCES <file>... [LINK <target>...]): the static library of one folder, "orvanta_<folder>".
function(orvanta_library folder)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    add_library(orvanta_${folder} STATIC ${arg_SOURCES})
    target_link_libraries(orvanta_${folder} PUBLIC orvanta_options ${arg_LINK})
endfunction()
