# One golden case of the command-line tool.
#
# The case folder holds:
#   args          the arguments, one a line; @DATA@ is the fixture folder,
#                 @CASE@ the case folder, @SCRATCH@ an empty scratch folder
#   input.txt     optional input. When the arguments hold @INPUT@, the case
#                 runs three ways: the file as an argument, the same through
#                 standard input (the @INPUT@ argument left out), and with
#                 "-o FILE" (the result read back from the file). Otherwise
#                 the input is given on standard input.
#   expected.txt  the expected standard output (or -o file)
#   status        optional expected exit status (default 0)
#   stderr.txt    optional: each of its lines must occur in standard error
cmake_minimum_required(VERSION 3.16)

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
file(STRINGS ${CASE}/args raw_args)
set(args "")
foreach(a ${raw_args})
  string(REPLACE "@DATA@" "${DATA}" a "${a}")
  string(REPLACE "@CASE@" "${CASE}" a "${a}")
  string(REPLACE "@SCRATCH@" "${SCRATCH}" a "${a}")
  list(APPEND args "${a}")
endforeach()

set(want_status 0)
if(EXISTS ${CASE}/status)
  file(STRINGS ${CASE}/status want_status)
endif()
file(READ ${CASE}/expected.txt want)

set(runs plain)
set(stdin_file "")
if(EXISTS ${CASE}/input.txt)
  if("@INPUT@" IN_LIST args)
    set(runs file stdin output)
  else()
    set(stdin_file ${CASE}/input.txt)
  endif()
endif()

foreach(run ${runs})
  set(run_args ${args})
  set(input "${stdin_file}")
  if(run STREQUAL "file" OR run STREQUAL "output")
    list(TRANSFORM run_args REPLACE "^@INPUT@$" "${CASE}/input.txt")
  elseif(run STREQUAL "stdin")
    list(REMOVE_ITEM run_args "@INPUT@")
    set(input ${CASE}/input.txt)
  endif()
  if(run STREQUAL "output")
    list(APPEND run_args -o ${SCRATCH}/out.txt)
  endif()
  if(input)
    execute_process(COMMAND ${TOOL} ${run_args} INPUT_FILE ${input}
      OUTPUT_VARIABLE got ERROR_VARIABLE err RESULT_VARIABLE status)
  else()
    execute_process(COMMAND ${TOOL} ${run_args}
      OUTPUT_VARIABLE got ERROR_VARIABLE err RESULT_VARIABLE status)
  endif()
  if(run STREQUAL "output")
    if(NOT got STREQUAL "")
      message(FATAL_ERROR "[${run}] standard output should be empty with -o:\n${got}")
    endif()
    file(READ ${SCRATCH}/out.txt got)
  endif()
  if(NOT status STREQUAL want_status)
    message(FATAL_ERROR "[${run}] exit status ${status}, expected ${want_status}\nstderr:\n${err}")
  endif()
  if(NOT got STREQUAL want)
    file(WRITE ${SCRATCH}/got-${run}.txt "${got}")
    message(FATAL_ERROR "[${run}] output differs from ${CASE}/expected.txt "
                        "(see ${SCRATCH}/got-${run}.txt):\n${got}\nstderr:\n${err}")
  endif()
  if(EXISTS ${CASE}/stderr.txt)
    file(STRINGS ${CASE}/stderr.txt needles)
    foreach(n ${needles})
      string(REPLACE "@DATA@" "${DATA}" n "${n}")
      string(REPLACE "@SCRATCH@" "${SCRATCH}" n "${n}")
      string(FIND "${err}" "${n}" at)
      if(at EQUAL -1)
        message(FATAL_ERROR "[${run}] standard error lacks \"${n}\":\n${err}")
      endif()
    endforeach()
  endif()
endforeach()
