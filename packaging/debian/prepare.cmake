# Before a package is put together: documents compressed as Debian wants them, without name and time, so that two builds of
# the same sources are alike.
file(GLOB_RECURSE documents "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*.1" "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/changelog*")
if(documents)
  execute_process(COMMAND gzip -9n ${documents} COMMAND_ERROR_IS_FATAL ANY)
endif()
