# Fetches what package-lock.json in FOLDER names, from the registry for which npm is configured.
execute_process(
    COMMAND ${NPM} ci --omit=dev --no-progress
    WORKING_DIRECTORY ${FOLDER}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The molecule viewer needs 3Dmol.js, and npm could not fetch it. npm must be able to reach a "
        "registry; `npm ping` tells whether it does, `npm config set registry ADDRESS` names another. npm said:\n${output}")
endif()
