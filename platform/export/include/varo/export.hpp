#ifndef VARO_EXPORT_HPP
#define VARO_EXPORT_HPP

/// Marks what the shared library offers to those who link it; everything else stays hidden.
#define VAROROBOTMODEL_API __attribute__((visibility("default")))

#endif
