# Lets the library write its samples and ImageMagick read them: the same pixels must come out.
#   cmake -D RUN=<how Windows programs are run> -D PROGRAM=<bitmap_samples> -D WORK=<folder> -P decoded.cmake

find_program(CONVERT NAMES convert-im6.q16 magick convert REQUIRED)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${RUN} ${PROGRAM} "Z:${WORK}" COMMAND_ERROR_IS_FATAL ANY)

file(GLOB samples ${WORK}/*.bmp)
list(LENGTH samples count)
if(count LESS 32)
  message(FATAL_ERROR "only ${count} samples were written")
endif()

foreach(sample ${samples})
  get_filename_component(name ${sample} NAME_WE)
  set(read ${WORK}/${name}.read)
  execute_process(COMMAND ${CONVERT} bmp:${sample} -depth 8 rgb:${read} RESULT_VARIABLE result ERROR_VARIABLE said)
  # A size field of 0 is complained about; the pixels come all the same.
  if(name MATCHES "^sized" AND NOT result EQUAL 0)
    message(FATAL_ERROR "${name}: ${said}")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK}/${name}.rgb ${read} RESULT_VARIABLE differs)
  if(NOT differs EQUAL 0)
    message(FATAL_ERROR "${name}: ImageMagick reads other pixels. ${said}")
  endif()
endforeach()
