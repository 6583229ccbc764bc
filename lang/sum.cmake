# cmake -DCATALOGUE=<file> -P sum.cmake: writes the catalogue's length and checksum beside it.
file(SIZE ${CATALOGUE} size)
file(SHA256 ${CATALOGUE} checksum)
file(WRITE ${CATALOGUE}.sum "${size} ${checksum}\n")
