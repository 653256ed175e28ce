#pragma once
/// @file  The wall as a chain of beam elements: nodes, elements, supports. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/diagram.h"
#include "ostrel/export.h"

#include <cstdint>
#include <map>
#include <vector>

/// One beam element between two neighbouring nodes. Element e joins the nodes e and e + 1.
class OSTREL_API xElemData {
public:
  virtual void reset();
  virtual ~xElemData() = default;
  xElemData() = default;
  xElemData(const xElemData&) = default;
  xElemData& operator=(const xElemData&) = default;

  void clear();  ///< the same as `reset`

  std::int32_t getStartNode() const { return start_node_; }
  void setStartNode(std::int32_t node) { start_node_ = node; }
  std::int32_t getEndNode() const { return end_node_; }
  void setEndNode(std::int32_t node) { end_node_ = node; }
  double getL() const { return length_; }
  void setL(double length) { length_ = length; }
  double getE() const { return elastic_modulus_; }
  void setE(double elastic_modulus) { elastic_modulus_ = elastic_modulus; }
  double getArea() const { return area_; }
  void setArea(double area) { area_ = area; }
  double getJ() const { return second_moment_; }
  void setJ(double second_moment) { second_moment_ = second_moment; }

private:
  std::int32_t start_node_ = 0;   ///< the upper node
  std::int32_t end_node_ = 0;     ///< the lower node
  double length_ = 0.0;           ///< length in force, whatever the nodes say [mm]
  double elastic_modulus_ = 0.0;  ///< elastic modulus [N/mm²]
  double area_ = 0.0;             ///< cross-section area [mm²]
  double second_moment_ = 0.0;    ///< second moment of area for bending of the wall [mm⁴]
};

/// The beam: nodes from the head down, elements between them, and what holds them.
///
/// Degrees of freedom of a node: 0 along the wall, positive downwards; 1 across it; 2 rotation.
class OSTREL_API xFemData {
public:
  virtual void reset();
  virtual ~xFemData() = default;
  xFemData() = default;
  xFemData(const xFemData&) = default;
  xFemData(xFemData&&) = default;
  xFemData& operator=(const xFemData&) = default;
  xFemData& operator=(xFemData&&) = default;

  double getDembin() const { return embedded_length_; }
  void setDembin(double length) { embedded_length_ = length; }
  double getDembinc() const { return embedded_length_addition_; }
  void setDembinc(double addition) { embedded_length_addition_ = addition; }
  std::int32_t getJtsoil() const { return first_soil_node_; }
  void setJtsoil(std::int32_t node) { first_soil_node_ = node; }
  double getRedfac() const { return first_spring_factor_; }
  void setRedfac(double factor) { first_spring_factor_ = factor; }

  std::vector<xPoint2d> nodes;      ///< x is 0, y is the depth [mm], ascending with the index
  std::vector<xElemData> elements;  ///< from the head down

  /// @name Imposed values by node: displacements [mm] of dof 0 and 1, rotation [rad] of dof 2
  ///@{
  std::map<std::int32_t, double> constrDof0;
  std::map<std::int32_t, double> constrDof1;
  std::map<std::int32_t, double> constrDof2;
  ///@}
  /// @name Concentrated springs by node: [N/mm] on dof 0 and 1, [Nmm] on dof 2
  ///@{
  std::map<std::int32_t, double> springDof0;
  std::map<std::int32_t, double> springDof1;
  std::map<std::int32_t, double> springDof2;
  ///@}

private:
  double embedded_length_ = 0.0;           ///< wall length less excavation depth [mm]
  double embedded_length_addition_ = 0.0;  ///< read by `xFemSolver::reviseElemLength` alone [mm]
  std::int32_t first_soil_node_ = 0;       ///< the node at the excavation level
  double first_spring_factor_ = 0.9;       ///< reduces the spring at that node [-]
};
