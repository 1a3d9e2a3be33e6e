# Installs the release build into a stage, builds the separate project against it, runs both its programs.
#   cmake -D ROOT=<source tree> -P run.cmake

set(stage ${ROOT}/build/stage)
set(work ${ROOT}/build/consumer)

function(step)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    list(JOIN ARGV " " command)
    message(FATAL_ERROR "exit status ${result}: ${command}")
  endif()
endfunction()

file(REMOVE_RECURSE ${stage})
step(${CMAKE_COMMAND} --install ${ROOT}/build/mingw64-release --prefix ${stage})
step(${CMAKE_COMMAND} -S ${ROOT}/tests/consumer -B ${work} -G Ninja -D CMAKE_BUILD_TYPE=Release
     -D CMAKE_TOOLCHAIN_FILE=${ROOT}/cmake/toolchain-mingw64.cmake -D CMAKE_PREFIX_PATH=${stage})
step(${CMAKE_COMMAND} --build ${work})

string(REPLACE "/" "\\" windows_stage "Z:${stage}/bin")
set(ENV{WINEPATH} "${windows_stage}")
step(${ROOT}/dev exec ${work}/consumer.exe)
step(${ROOT}/dev exec ${work}/consumer_static.exe)
