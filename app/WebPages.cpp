#include "app/WebPages.h"

#include <exception>

namespace veltrix {

bool WebPages::OpenWebPage(const std::string& address) {
    try {
        return shell_.Open(address, "C:\\") != 0;
    } catch (const std::exception&) {
        messages_.Show("Ik probeerde een internet-pagina te laten zien, alleen gaf dat een "
                       "foutmelding. Misschien heeft u geen internet op uw computer staan?",
                       "Veltrix", Buttons::Ok);
        return false;
    }
}

} // namespace veltrix
