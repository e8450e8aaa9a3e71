# The values that differ between one maker's build and another's. They are checked here, when the build is configured,
# and reach the code through one generated header, "configuration.h".

set(ORVANTA_UPDATE_HOST "update.kelvory.example" CACHE STRING "Host, and port if it is not 80, that is asked for new versions")
set(ORVANTA_WEB_ADDRESS "http://www.kelvory.example" CACHE STRING "The maker's home page: http://, a host, no slash at the end")
set(ORVANTA_SUPPORT_ADDRESS "support@kelvory.example" CACHE STRING "E-mail address that error boxes give")
set(ORVANTA_ORGANISATION_DOMAIN "kelvory.example" CACHE STRING "The maker's domain")
set(ORVANTA_CREDIT "Designed and written by Kelvory" CACHE STRING "Credit line of the splash and the About page")

function(orvanta_require name pattern rule)
    if(NOT "${${name}}" MATCHES "${pattern}")
        message(FATAL_ERROR "${name} is \"${${name}}\", but it must be ${rule}.")
    endif()
endfunction()

function(orvanta_check_configuration)
    set(host "[A-Za-z0-9]([A-Za-z0-9.-]*[A-Za-z0-9])?")
    orvanta_require(ORVANTA_UPDATE_HOST "^${host}(:[0-9]+)?$" "a host name, with a port if need be, without blanks or slashes")
    # The About page hands every scheme but http to the shell as a path, so nothing else may stand here.
    orvanta_require(ORVANTA_WEB_ADDRESS "^http://${host}(:[0-9]+)?(/[A-Za-z0-9._~-]+)*$"
        "an address that begins with http:// and names a host, without blanks, quotes or a slash at the end")
    orvanta_require(ORVANTA_SUPPORT_ADDRESS "^[A-Za-z0-9._%+-]+@${host}$" "an e-mail address")
    string(LENGTH "${ORVANTA_SUPPORT_ADDRESS}" length)
    if(length GREATER 64)
        message(FATAL_ERROR "ORVANTA_SUPPORT_ADDRESS is \"${ORVANTA_SUPPORT_ADDRESS}\", but it must be at most 64 characters long.")
    endif()
    orvanta_require(ORVANTA_ORGANISATION_DOMAIN "^${host}$" "a domain name")
    orvanta_require(ORVANTA_CREDIT "^[^\r\n\"\\\\]+$" "one line of text without double quotes and backslashes")
endfunction()

orvanta_check_configuration()
if(NOT CMAKE_SCRIPT_MODE_FILE)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/configuration.h.in ${CMAKE_BINARY_DIR}/generated/configuration.h @ONLY)
endif()
