# How a program is installed.

find_program(KVGUICTL_GZIP gzip REQUIRED)

# Gzips a file as Debian wants man pages and logs of changes: the same bytes each time.
function(kvguictl_compress file compressed)
    cmake_path(GET file FILENAME name)
    set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    add_custom_command(OUTPUT ${output} COMMAND ${KVGUICTL_GZIP} -9nc ${file} > ${output}
                       DEPENDS ${file} VERBATIM)
    add_custom_target(gzip_${name} ALL DEPENDS ${output})
    set(${compressed} ${output} PARENT_SCOPE)
endfunction()

# The program, and its man page, which lies beside its sources.
function(kvguictl_install_program name)
    kvguictl_compress(${CMAKE_CURRENT_SOURCE_DIR}/${name}.1 page)
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programs)
    install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT programs)
endfunction()
