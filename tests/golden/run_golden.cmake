# Compiles a golden case's level, runs quorbit-sim on it with its replay and compares the trace
# with the expected one; on a mismatch the differences are shown and the actual trace stays in WORK.
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${LEVEL_TOOL} compile ${CASE}/level.txt -o ${WORK}/level.lvl
                RESULT_VARIABLE compiled)
if(NOT compiled EQUAL 0)
  message(FATAL_ERROR "cannot compile ${CASE}/level.txt")
endif()
execute_process(COMMAND ${SIM} ${WORK}/level.lvl --trace --replay ${CASE}/replay
                OUTPUT_FILE ${WORK}/actual.trace RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "quorbit-sim exited with ${status}")
endif()
execute_process(COMMAND diff -u ${CASE}/expected.trace ${WORK}/actual.trace RESULT_VARIABLE differs)
if(NOT differs EQUAL 0)
  message(FATAL_ERROR "the trace differs from ${CASE}/expected.trace; see ${WORK}/actual.trace")
endif()
