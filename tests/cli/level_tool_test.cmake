# Runs quorbit-level as a process and checks exit statuses, messages and written files.
# cmake -DTOOL=quorbit-level -DSIM=quorbit-sim -DLEVEL=Beginner1.txt
#       -DWORK=folder -DSCENARIO=name -P level_tool_test.cmake

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

# run(<expected exit status> <output variable> command...): stdout and stderr together.
function(run expected output)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT "${status}" STREQUAL "${expected}")
    message(FATAL_ERROR "${ARGN}\nexited with ${status}, not ${expected}:\n${out}")
  endif()
  set(${output} "${out}" PARENT_SCOPE)
endfunction()

function(expect_in text pattern)
  string(FIND "${text}" "${pattern}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "expected \"${pattern}\" in:\n${text}")
  endif()
endfunction()

function(expect_same_file a b)
  file(SHA256 ${a} ha)
  file(SHA256 ${b} hb)
  if(NOT ha STREQUAL hb)
    message(FATAL_ERROR "${a} and ${b} differ")
  endif()
endfunction()

# Only the files a scenario means to write may be in the work folder.
function(expect_only_files)
  file(GLOB present RELATIVE ${WORK} ${WORK}/*)
  list(SORT present)
  set(wanted ${ARGN})
  list(SORT wanted)
  if(NOT "${present}" STREQUAL "${wanted}")
    message(FATAL_ERROR "files in ${WORK}: ${present}; expected: ${wanted}")
  endif()
endfunction()

set(lvl ${WORK}/level.lvl)

if(SCENARIO STREQUAL "round_trip")
  run(0 out ${TOOL} compile ${LEVEL} -o ${lvl})
  expect_in("${out}" "compiled")
  run(0 out ${TOOL} check ${lvl})
  expect_in("${out}" "level.lvl: ok")
  run(0 out ${TOOL} decompile ${lvl} -o ${WORK}/back.txt)
  run(0 out ${TOOL} compile ${WORK}/back.txt -o ${WORK}/again.lvl)
  expect_same_file(${lvl} ${WORK}/again.lvl)
  run(0 out ${TOOL} table ${lvl} ${LEVEL})
  expect_in("${out}" "| Tier | No. | Title |")
  expect_only_files(level.lvl back.txt again.lvl)

elseif(SCENARIO STREQUAL "compile_error_writes_nothing")
  # The first grid row starts with a character that is no square kind.
  file(READ ${LEVEL} original)
  string(REGEX MATCH "^.*\ngrid:\n" head "${original}")
  string(REGEX MATCHALL "\n" newlines "${head}")
  list(LENGTH newlines gridLine)
  math(EXPR badLine "${gridLine} + 1")
  string(REGEX REPLACE "\ngrid:\n." "\ngrid:\nx" bad "${original}")
  file(WRITE ${WORK}/bad.txt "${bad}")
  file(WRITE ${lvl} "old contents")
  run(1 out ${TOOL} compile ${WORK}/bad.txt -o ${lvl})
  expect_in("${out}" "bad.txt:${badLine}: error: unknown grid character 'x' in column 0")
  file(READ ${lvl} after)
  if(NOT after STREQUAL "old contents")
    message(FATAL_ERROR "a failed compile changed ${lvl}")
  endif()
  run(1 out ${TOOL} compile ${WORK}/bad.txt -o ${WORK}/new.lvl)
  expect_only_files(bad.txt level.lvl)
  run(1 out ${TOOL} compile ${WORK}/absent.txt -o ${WORK}/new.lvl)
  expect_in("${out}" "absent.txt: error: cannot read the file")

elseif(SCENARIO STREQUAL "damaged_levels")
  run(0 out ${TOOL} compile ${LEVEL} -o ${lvl})
  # kind40: the last square of the grid becomes kind 40 ('(' then a zero byte); short: the file
  # ends halfway through its grid; empty: zero bytes.
  file(SIZE ${lvl} size)
  math(EXPR lastSquare "${size} - 2")
  math(EXPR shortSize "${size} - ${size} / 4")
  foreach(damaged kind40 short)
    file(COPY_FILE ${lvl} ${WORK}/${damaged}.lvl)
  endforeach()
  run(0 out sh -c "printf '(\\000' | dd of=${WORK}/kind40.lvl bs=1 seek=${lastSquare} conv=notrunc status=none")
  run(0 out truncate -s ${shortSize} ${WORK}/short.lvl)
  file(WRITE ${WORK}/empty.lvl "")

  # The last square of the grid, from the level text's grid rows.
  file(STRINGS ${LEVEL} lines)
  list(FIND lines "grid:" gridLine)
  math(EXPR firstRow "${gridLine} + 1")
  list(SUBLIST lines ${firstRow} -1 rows)
  list(LENGTH rows height)
  list(GET rows 0 row0)
  string(LENGTH "${row0}" width)
  math(EXPR lastX "${width} - 1")
  math(EXPR lastY "${height} - 1")
  run(1 out ${TOOL} check ${WORK}/kind40.lvl)
  expect_in("${out}"
            "kind40.lvl: error: the game cannot play it: square (${lastX}, ${lastY}) has kind 40")
  run(2 out ${SIM} ${WORK}/kind40.lvl)

  # Cut short: check fails, while the game plays it.
  run(1 out ${TOOL} check ${WORK}/short.lvl)
  expect_in("${out}" "short.lvl: error: cut short: the file ends in the grid")
  run(0 out ${SIM} ${WORK}/short.lvl --max-cycles 5)
  expect_in("${out}" "\"result\":")
  run(0 out ${TOOL} decompile ${WORK}/short.lvl)
  expect_in("${out}" "warning: cut short")

  run(1 out ${TOOL} check ${WORK}/empty.lvl)
  expect_in("${out}" "empty.lvl: error: This level does not exist!")

  # Several files: every problem is listed and one bad file fails them all.
  run(1 out ${TOOL} check ${lvl} ${WORK}/kind40.lvl ${WORK}/short.lvl ${WORK}/absent.lvl)
  expect_in("${out}" "level.lvl: ok")
  expect_in("${out}" "absent.lvl: error: cannot read the file")
  expect_in("${out}" "1 of 4 levels are fine")

elseif(SCENARIO STREQUAL "hostile_files")
  # A folder, a device, a pipe with no writer and a huge file where a level is expected: one line
  # each, the other files still checked, and no tool aborts, waits or fills the memory.
  run(0 out ${TOOL} compile ${LEVEL} -o ${lvl})
  file(MAKE_DIRECTORY ${WORK}/folder.lvl)
  run(0 out mkfifo ${WORK}/pipe.lvl)
  run(0 out truncate -s 200M ${WORK}/huge.lvl)
  run(1 out ${TOOL} check ${lvl} ${WORK}/folder.lvl /dev/zero ${WORK}/pipe.lvl ${WORK}/huge.lvl ${lvl})
  expect_in("${out}" "folder.lvl: error: cannot read the file: it is a folder, not a file")
  expect_in("${out}" "/dev/zero: error: cannot read the file: it is not a regular file")
  expect_in("${out}" "pipe.lvl: error: cannot read the file: it is not a regular file")
  expect_in("${out}" "huge.lvl: error: cannot read the file: it is larger than")
  expect_in("${out}" "2 of 6 levels are fine")
  foreach(command decompile compile table)
    run(1 out ${TOOL} ${command} ${WORK}/folder.lvl)
    expect_in("${out}" "it is a folder")
  endforeach()
  run(2 out ${SIM} ${WORK}/pipe.lvl)
  expect_in("${out}" "no level in ${WORK}/pipe.lvl: it is not a regular file")
  run(2 out ${SIM} ${lvl} --replay ${WORK}/folder.lvl)
  expect_in("${out}" "cannot read the replay file ${WORK}/folder.lvl: it is a folder")

else()
  message(FATAL_ERROR "unknown scenario ${SCENARIO}")
endif()
