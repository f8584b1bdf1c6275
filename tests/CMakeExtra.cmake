# Registrations beyond the GoogleTest programs.

# The tool's helpers are tested from their sources, with the library's
# internals linked statically like every other test program.
if(TARGET cli_tests)
  target_sources(cli_tests PRIVATE
    ${PROJECT_SOURCE_DIR}/cli/common/encoding.cc
    ${PROJECT_SOURCE_DIR}/cli/common/paragraphs.cc
    ${PROJECT_SOURCE_DIR}/cli/common/table_report.cc)
  target_include_directories(cli_tests PRIVATE ${PROJECT_SOURCE_DIR}/cli)
endif()

# End-to-end cases of the built tool: each folder under tests/cli/cases is
# one golden case (see tests/cli/run_case.cmake), each flows/*.sh one
# scripted scenario (skipped, exit status 77, when a tool it needs is
# missing).
if(TARGET tarvola_cli)
  set(cli_dir ${CMAKE_CURRENT_SOURCE_DIR}/cli)
  file(GLOB cli_cases LIST_DIRECTORIES true ${cli_dir}/cases/*)
  foreach(case ${cli_cases})
    if(IS_DIRECTORY ${case})
      get_filename_component(name ${case} NAME)
      add_test(NAME cli.${name}
        COMMAND ${CMAKE_COMMAND} -DTOOL=$<TARGET_FILE:tarvola_cli> -DCASE=${case}
                -DDATA=${cli_dir}/data -DSCRATCH=${CMAKE_CURRENT_BINARY_DIR}/cli-scratch/${name}
                -P ${cli_dir}/run_case.cmake)
    endif()
  endforeach()
  find_program(TARVOLA_BASH bash)
  if(TARVOLA_BASH AND NOT WIN32)
    file(GLOB cli_flows ${cli_dir}/flows/*.sh)
    list(FILTER cli_flows EXCLUDE REGEX "/common\\.sh$")  # sourced by the others
    foreach(flow ${cli_flows})
      get_filename_component(name ${flow} NAME_WE)
      add_test(NAME cli.flow.${name}
        COMMAND ${TARVOLA_BASH} ${flow} $<TARGET_FILE:tarvola_cli> ${cli_dir}/data
                ${CMAKE_CURRENT_BINARY_DIR}/cli-scratch/flow-${name})
      set_tests_properties(cli.flow.${name} PROPERTIES SKIP_RETURN_CODE 77)
    endforeach()
  endif()
endif()

# The checker's figures on held-out Basque prose with the built data set
# (skipped without the corpus or the full data set).
if(TARGET tarvola_cli AND TARGET tarvola_data)
  add_test(NAME data.checker_quality
    COMMAND sh ${PROJECT_SOURCE_DIR}/data/tests/checker_quality.sh $<TARGET_FILE:tarvola_cli>
            ${PROJECT_BINARY_DIR}/data/built/tarvola.conf ${TARVOLA_CORPUS_DIR})
  set_tests_properties(data.checker_quality PROPERTIES SKIP_RETURN_CODE 77)
endif()
