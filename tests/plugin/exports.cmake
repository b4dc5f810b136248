# Compares what libraries export with what is written down: nothing leaks, nothing disappears.
# cmake -DTOOL=nm|objdump -DFORMAT=elf|pe -DLIBRARIES=name=file;... -DLIST=file -P exports.cmake
# LIST holds one "name symbol" a line.

set(today "")
foreach(entry IN LISTS LIBRARIES)
    string(REGEX MATCH "^([^=]+)=(.+)$" matched "${entry}")
    set(name "${CMAKE_MATCH_1}")
    set(file "${CMAKE_MATCH_2}")
    if(FORMAT STREQUAL "pe")
        execute_process(COMMAND "${TOOL}" -p "${file}" OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
        # "[   0] symbol", with more numbers before the symbol in later versions
        string(REGEX REPLACE "^.*\\[Ordinal/Name Pointer\\][^\n]*\n" "" text "${text}")
        string(REGEX REPLACE "\n\n.*$" "\n" text "${text}")
    else()
        execute_process(COMMAND "${TOOL}" -D --defined-only "${file}"
            OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    endif()
    string(REGEX MATCHALL "[A-Za-z_.$@0-9]+\r?\n" symbols "${text}")
    if(NOT symbols)
        message(SEND_ERROR "${name} exports nothing that can be read from ${file}")
    endif()
    foreach(symbol IN LISTS symbols)
        string(STRIP "${symbol}" symbol)
        list(APPEND today "${name} ${symbol}")
    endforeach()
endforeach()

file(STRINGS "${LIST}" written)
set(leaked ${today})
list(REMOVE_ITEM leaked ${written})
set(gone ${written})
list(REMOVE_ITEM gone ${today})
foreach(symbol IN LISTS leaked)
    message(SEND_ERROR "exported, but not written down:\n  ${symbol}")
endforeach()
foreach(symbol IN LISTS gone)
    message(SEND_ERROR "written down, but not exported:\n  ${symbol}")
endforeach()
