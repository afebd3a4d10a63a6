# Runs one script that must stop the driver, in a fresh working directory: the exit status is 1,
# the output up to the fault equals NAME.expected and the reason equals NAME.err.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
get_filename_component(dir ${SCRIPT} DIRECTORY)
get_filename_component(name ${SCRIPT} NAME_WE)
execute_process(COMMAND ${DRIVER} ${SCRIPT} WORKING_DIRECTORY ${WORK}
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
file(READ ${dir}/${name}.expected expected)
file(READ ${dir}/${name}.err expected_err)
if(NOT rc EQUAL 1)
  message(FATAL_ERROR "marendola-script exited ${rc}, not 1: ${err}\n--- output ---\n${out}")
endif()
if(NOT out STREQUAL expected)
  message(FATAL_ERROR "output differs from ${name}.expected:\n${out}")
endif()
if(NOT err STREQUAL expected_err)
  message(FATAL_ERROR "reason differs from ${name}.err:\n${err}")
endif()
