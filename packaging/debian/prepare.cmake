# Before a package is put together: documents as Debian wants them, and one time for all files, so that two builds of the
# same sources are alike.
set(tree "${CPACK_TEMPORARY_INSTALL_DIRECTORY}")

file(GLOB_RECURSE documents "${tree}/*.1" "${tree}/changelog*")
if(documents)
  execute_process(COMMAND gzip -9n ${documents} COMMAND_ERROR_IS_FATAL ANY)
endif()

if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find "${tree}" -exec touch -h -d "@$ENV{SOURCE_DATE_EPOCH}" "{}" + COMMAND_ERROR_IS_FATAL ANY)
endif()
