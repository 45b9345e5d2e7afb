#pragma once

namespace kv::qt {

/// From now on screen readers are answered from the nodes, and told what changes in them, until
/// `ForgetScreenReaders`.
void AnswerScreenReaders();
void ForgetScreenReaders();

}  // namespace kv::qt
