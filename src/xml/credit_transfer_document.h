#pragma once

#include "core/message.h"
#include "xml/xml_buffer.h"

namespace tivex {

// Writes a credit transfer message as a customer credit transfer initiation
// (pain.001) behind the XML declaration. False, with the reason in the message
// unless memory was exhausted within markup, when it could not.
bool cti_toXML(message& msg, xml_buffer_t& out);

}  // namespace tivex
