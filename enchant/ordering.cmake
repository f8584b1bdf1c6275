# Install step: gives Basque to tarvola in Enchant's ordering file
# (${ordering}, set by the step before), keeping what the file says of
# other languages and any Basque entry already there.
get_filename_component(folder "${ordering}" DIRECTORY)
file(MAKE_DIRECTORY "${folder}")
set(old "")
if(EXISTS "${ordering}")
  file(READ "${ordering}" old)
endif()
foreach(tag eu eu_ES eu_FR)
  if(NOT old MATCHES "(^|\n)${tag}:")
    message(STATUS "Adding ${tag}:tarvola to ${ordering}")
    file(APPEND "${ordering}" "${tag}:tarvola,hunspell,nuspell,aspell\n")
  endif()
endforeach()
