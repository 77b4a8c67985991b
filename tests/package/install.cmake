# Installs BUILD into STAGE, from nothing: what an earlier run left must not stand in for a lost file.
file(REMOVE_RECURSE "${STAGE}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${STAGE}"
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
