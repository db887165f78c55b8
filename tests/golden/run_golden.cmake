# Compiles a golden case's level, runs quorbit-sim on it with its replay and compares the trace
# (the rules' or the view's) with the expected one; on a mismatch the differences are shown and
# the actual trace stays in WORK.
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${LEVEL_TOOL} compile ${CASE}/level.txt -o ${WORK}/level.lvl
                RESULT_VARIABLE compiled)
if(NOT compiled EQUAL 0)
  message(FATAL_ERROR "cannot compile ${CASE}/level.txt")
endif()
# A case with expected.view compares what the player sees (--trace-view), otherwise the rules.
set(mode trace)
set(option --trace)
if(EXISTS ${CASE}/expected.view)
  set(mode view)
  set(option --trace-view)
endif()
set(actual_file ${WORK}/actual.${mode})
# A run that fails or faults leaves a trace without its result line, so the comparison fails.
execute_process(COMMAND ${SIM} ${WORK}/level.lvl ${option} --replay ${CASE}/replay
                OUTPUT_FILE ${actual_file})
execute_process(COMMAND diff -u ${CASE}/expected.${mode} ${actual_file} RESULT_VARIABLE differs)
if(NOT differs EQUAL 0)
  message(FATAL_ERROR "the trace differs from ${CASE}/expected.${mode}; see ${actual_file}")
endif()
