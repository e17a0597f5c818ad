// How much room the data of a control's item gets where they are fetched by a message.
#pragma once

// Bytes that an item's data needs at the most where its size isn't known.
constexpr int itemBufferSize = 256;
