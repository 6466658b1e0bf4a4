#pragma once

#include "core/message.h"
#include "xml/xml_buffer.h"

namespace tivex {

// Writes a direct debit message as a customer direct debit initiation (pain.008)
// behind the XML declaration. False, with the reason in the message unless memory
// was exhausted within markup, when it could not.
bool ddi_toXML(message& msg, xml_buffer_t& out);

}  // namespace tivex
